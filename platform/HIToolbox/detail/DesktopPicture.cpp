// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/DesktopPicture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace {

template <class T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// Whether a program owns the X selection.
bool isSelectionOwned(xcb_connection_t* x, const std::string& selection) {
    const auto name = static_cast<std::uint16_t>(selection.size());
    const Reply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(x, xcb_intern_atom(x, false, name, selection.c_str()), nullptr),
        std::free);
    if (!atom)
        return false;
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, atom->atom), nullptr),
        std::free);
    return owner && owner->owner != XCB_NONE;
}

/// Of the display named in DISPLAY.
int screenNumber() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen))
        std::free(host);
    return screen;
}

QRect pixelsOf(const QScreen& screen) {
    return {screen.geometry().topLeft(),
            (QSizeF(screen.geometry().size()) * screen.devicePixelRatio()).toSize()};
}

} // namespace

bool isDesktopComposited() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    // A Wayland desktop composites all windows, those of X programs too.
    if (!connection || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return true;
    // The compositing manager of a screen owns this selection (Extended Window Manager Hints).
    return isSelectionOwned(connection, "_NET_WM_CM_S" + std::to_string(screenNumber()));
}

void DesktopPicture::take() {
    const QRect earlierPlace = std::exchange(place_, {});
    const QImage earlier = std::exchange(image_, {});
    for (const QScreen* screen : QGuiApplication::screens())
        place_ |= pixelsOf(*screen);
    image_ = QImage(place_.size(), QImage::Format_RGB32);
    image_.fill(Qt::black);
    QPainter painter(&image_);
    painter.translate(-place_.topLeft());
    for (QScreen* screen : QGuiApplication::screens()) {
        QPixmap picture = screen->grabWindow();
        picture.setDevicePixelRatio(1);
        painter.drawPixmap(pixelsOf(*screen).topLeft(), picture);
    }
    painter.drawImage(earlierPlace.topLeft(), earlier);
}
