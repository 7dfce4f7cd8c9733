// SPDX-License-Identifier: MIT
#include "agent/x11/Desktop.h"

#include "agent/x11/Panels.h"
#include "agent/x11/Properties.h"
#include "agent/x11/ScreenLock.h"
#include "agent/x11/Screens.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>
#include <xcb/randr.h>

namespace {

constexpr const char* kActiveWindow = "_NET_ACTIVE_WINDOW";

} // namespace

Desktop::Desktop(XServer& server) : server_(server), popUps_(std::make_unique<PopUps>(server)) {
    followServer();
    followRoot();
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        followQt();
}

Desktop::~Desktop() = default;

std::vector<Screen> Desktop::screens() const {
    auto screens = listScreens(server_);
    measurePanels(server_, screens);
    return screens;
}

Area Desktop::inPixels(float x, float y, float width, float height) const {
    const Screen main = listScreens(server_).front();
    return {main.area.left + x * main.scale, main.area.top + y * main.scale, width * main.scale,
            height * main.scale};
}

Place Desktop::pointer() const {
    xcb_connection_t* connection = server_.connection();
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection, xcb_query_pointer(connection, server_.root()), nullptr));
    if (!reply)
        return {};
    return {static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

std::vector<Area> Desktop::openMenus() const {
    return popUps_->menus(listScreens(server_));
}

bool Desktop::lockWindowIsUp() const {
    return popUps_->lockWindowIsUp(listScreens(server_));
}

void Desktop::onScreens(std::function<void()> changed) {
    screensChanged_ = std::move(changed);
}

void Desktop::onActiveWindow(std::function<void()> changed) {
    activeWindowChanged_ = std::move(changed);
}

void Desktop::onLock(std::function<void(bool)> changed) {
    lock_ = std::make_unique<ScreenLock>(std::move(changed));
}

void Desktop::followQt() {
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

void Desktop::followServer() {
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

void Desktop::followRoot() {
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

xcb_window_t Desktop::activeWindow() const {
    const auto windows = numbersOf(server_, askProperty(server_, server_.root(), kActiveWindow));
    return windows.empty() ? XCB_NONE : windows.front();
}

void Desktop::tellScreens() const {
    if (screensChanged_)
        screensChanged_();
}
