// SPDX-License-Identifier: MIT
#include "agent/x11/Screens.h"

#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <xcb/randr.h>

namespace {

bool qtHasScreens() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) &&
           QGuiApplication::platformName() == QLatin1String("xcb");
}

/// The scale and the main display are Qt's. Sizes aren't: rounded to its units, they may lack
/// pixels.
void describe(Screen& screen, bool& isMain) {
    for (const QScreen* each : QGuiApplication::screens()) {
        const DisplayPlace place(*each); // its corner is in pixels
        if (place.geometry.topLeft() != QPointF(screen.area.left, screen.area.top).toPoint())
            continue;
        screen.scale = place.scale;
        isMain = each == QGuiApplication::primaryScreen();
    }
}

/// The main one first.
std::vector<Screen> monitors(XServer& server) {
    xcb_connection_t* connection = server.connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!extension || !extension->present)
        return {};
    const XReply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        connection, xcb_randr_get_monitors(connection, server.root(), 1), nullptr));
    std::vector<Screen> screens;
    if (!reply)
        return screens;
    const bool asksQt = qtHasScreens();
    for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        const auto& info = *each.data;
        Screen screen;
        screen.area = Area{double(info.x), double(info.y), double(info.width), double(info.height)};
        bool isMain = info.primary;
        if (asksQt)
            describe(screen, isMain);
        screens.insert(isMain ? screens.begin() : screens.end(), screen);
    }
    return screens;
}

} // namespace

bool covers(const Area& outer, const Area& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right() >= inner.right() &&
           outer.bottom() >= inner.bottom();
}

std::vector<Screen> listScreens(XServer& server) {
    std::vector<Screen> screens;
    for (const Screen& each : monitors(server))
        if (!each.area.isEmpty() &&
            std::none_of(screens.begin(), screens.end(),
                         [&](const Screen& other) { return covers(other.area, each.area); }))
            screens.push_back(each);
    if (screens.empty()) {
        Screen whole;
        whole.area = {0, 0, double(server.screen().width_in_pixels),
                      double(server.screen().height_in_pixels)};
        screens.push_back(whole);
    }
    return screens;
}
