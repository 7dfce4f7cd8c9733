// SPDX-License-Identifier: MIT
#include "agent/x11/XDesktop.h"

#include "agent/x11/Panels.h"
#include "agent/x11/Properties.h"
#include "agent/x11/Screens.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>
#include <xcb/randr.h>

namespace {

constexpr const char* kActiveWindow = "_NET_ACTIVE_WINDOW";

} // namespace

XDesktop::XDesktop(XServer& server) : server_(server), popUps_(std::make_unique<PopUps>(server)) {
    followServer();
    followRoot();
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        followQt();
}

std::vector<Screen> XDesktop::screens() const {
    auto screens = listScreens(server_);
    measurePanels(server_, screens);
    return screens;
}

Place XDesktop::pointer() const {
    xcb_connection_t* connection = server_.connection();
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection, xcb_query_pointer(connection, server_.root()), nullptr));
    if (!reply)
        return {};
    return {static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

std::vector<Area> XDesktop::openMenus() const {
    return popUps_->menus(listScreens(server_));
}

bool XDesktop::lockWindowIsUp() const {
    return popUps_->lockWindowIsUp(listScreens(server_));
}

void XDesktop::onScreens(std::function<void()> changed) {
    screensChanged_ = std::move(changed);
}

void XDesktop::onActiveWindow(std::function<void()> changed) {
    activeWindowChanged_ = std::move(changed);
}

void XDesktop::followQt() {
    const auto follow = [this](QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, &context_, [this] { tellScreens(); });
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_,
                     [this, follow](QScreen* screen) {
                         follow(screen);
                         tellScreens();
                     });
    for (const auto signal :
         {&QGuiApplication::screenRemoved, &QGuiApplication::primaryScreenChanged})
        QObject::connect(qGuiApp, signal, &context_, [this] { tellScreens(); });
}

void XDesktop::followServer() {
    xcb_connection_t* connection = server_.connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!extension || !extension->present)
        return;
    xcb_randr_select_input(connection, server_.root(),
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE);
    const int first = extension->first_event;
    server_.onEvent([this, first](const xcb_generic_event_t& event) {
        const int type = event.response_type & 0x7f;
        if (type == first + XCB_RANDR_SCREEN_CHANGE_NOTIFY || type == first + XCB_RANDR_NOTIFY)
            tellScreens();
    });
}

void XDesktop::followRoot() {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(server_.connection(), server_.root(), XCB_CW_EVENT_MASK, &mask);
    activeWindow_ = activeWindow();
    server_.onEvent([this](const xcb_generic_event_t& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY ||
            change.atom != server_.atom(kActiveWindow))
            return;
        const xcb_window_t now = activeWindow();
        if (std::exchange(activeWindow_, now) != now && activeWindowChanged_)
            activeWindowChanged_();
    });
}

xcb_window_t XDesktop::activeWindow() const {
    const auto windows = numbersOf(server_, askProperty(server_, server_.root(), kActiveWindow));
    return windows.empty() ? XCB_NONE : windows.front();
}

void XDesktop::tellScreens() const {
    if (screensChanged_)
        screensChanged_();
}
