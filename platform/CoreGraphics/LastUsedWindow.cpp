// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/LastUsedWindow.h"

#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <ranges>
#include <vector>
#include <xcb/xcb.h>

namespace {

constexpr std::uint32_t kMostWindows = 1024; // 32-bit units that a property may have

template <class T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// Asks what window managers tell of windows (Extended Window Manager Hints).
class WindowTeller {
public:
    explicit WindowTeller(xcb_connection_t& x)
        : x_(x), root_(xcb_setup_roots_iterator(xcb_get_setup(&x)).data->root) {}

    /// The windows that programs opened, the topmost first.
    std::vector<xcb_window_t> windows() const {
        auto all = property(root_, "_NET_CLIENT_LIST_STACKING");
        std::ranges::reverse(all);
        return all;
    }

    /// Whether it is a window on the screen: not a panel, not the desktop, not minimised, not on
    /// another workspace.
    bool isInSight(xcb_window_t window) const {
        const auto has = [&](const char* property, const char* value) {
            return std::ranges::count(this->property(window, property), atom(value)) > 0;
        };
        return !has("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK") &&
               !has("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP") &&
               !has("_NET_WM_STATE", "_NET_WM_STATE_HIDDEN") && isMapped(window);
    }

    /// In the desktop's pixels, with its frame. Empty when the window is gone.
    QRect frameOf(xcb_window_t window) const {
        const Reply<xcb_get_geometry_reply_t> size(
            xcb_get_geometry_reply(&x_, xcb_get_geometry(&x_, window), nullptr), std::free);
        const Reply<xcb_translate_coordinates_reply_t> place(
            xcb_translate_coordinates_reply(
                &x_, xcb_translate_coordinates(&x_, window, root_, 0, 0), nullptr),
            std::free);
        if (!size || !place)
            return {};
        const QRect inner(place->dst_x, place->dst_y, size->width, size->height);
        const auto frame = property(window, "_NET_FRAME_EXTENTS"); // left, right, top, bottom
        if (frame.size() != 4)
            return inner;
        const auto side = [&](std::size_t index) { return static_cast<int>(frame[index]); };
        return inner.adjusted(-side(0), -side(2), side(1), side(3));
    }

private:
    xcb_atom_t atom(std::string_view name) const {
        const auto length = static_cast<std::uint16_t>(name.size());
        const Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(&x_, xcb_intern_atom(&x_, false, length, name.data()), nullptr),
            std::free);
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    std::vector<std::uint32_t> property(xcb_window_t window, std::string_view name) const {
        const auto cookie = xcb_get_property(&x_, false, window, atom(name),
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWindows);
        const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(&x_, cookie, nullptr),
                                                    std::free);
        if (!reply || reply->format != 32)
            return {};
        const auto* first = static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {first, first + reply->value_len};
    }

    bool isMapped(xcb_window_t window) const {
        const Reply<xcb_get_window_attributes_reply_t> reply(
            xcb_get_window_attributes_reply(&x_, xcb_get_window_attributes(&x_, window), nullptr),
            std::free);
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    xcb_connection_t& x_;
    xcb_window_t root_;
};

bool isOwn(xcb_window_t window) {
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [&](const QWindow* own) {
        return own->handle() && own->winId() == window;
    });
}

CGRect inPoints(const QRect& pixels) {
    const DisplayPlace main(*QGuiApplication::primaryScreen());
    const QRectF points = toPoints(DisplayPlace(pixels, 1), main);
    return CGRectMake(static_cast<CGFloat>(points.x()), static_cast<CGFloat>(points.y()),
                      static_cast<CGFloat>(points.width()), static_cast<CGFloat>(points.height()));
}

} // namespace

std::optional<CGRect> lastUsedWindow() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    // On a Wayland desktop X knows only its own programs' windows.
    if (!connection || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return std::nullopt;
    const WindowTeller teller(*connection);
    for (const xcb_window_t window : teller.windows())
        if (!isOwn(window) && teller.isInSight(window))
            if (const QRect frame = teller.frameOf(window); !frame.isEmpty())
                return inPoints(frame);
    return std::nullopt;
}

void watchLastUsedWindow(std::function<void()> changed) {
    static QMetaObject::Connection watch;
    QObject::disconnect(watch);
    if (changed)
        watch = QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp,
                                 [changed = std::move(changed)] { changed(); });
}
