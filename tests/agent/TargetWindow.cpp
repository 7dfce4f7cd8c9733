// SPDX-License-Identifier: MIT
#include "tests/agent/TargetWindow.h"

#include "agent/x11/XServer.h"

#include <QTest>

#include <tuple>

namespace {

constexpr int kKeyCodes = 256;
constexpr int kButtons = 5;

std::string textOf(const xcb_generic_event_t& event) {
    const auto& any = reinterpret_cast<const xcb_button_press_event_t&>(event);
    const std::string detail = std::to_string(any.detail);
    const std::string place = std::to_string(any.root_x) + "," + std::to_string(any.root_y);
    switch (event.response_type & 0x7F) {
    case XCB_BUTTON_PRESS:
        return "press " + detail + " at " + place;
    case XCB_BUTTON_RELEASE:
        return "release " + detail + " at " + place;
    case XCB_MOTION_NOTIFY:
        return "move to " + place;
    case XCB_KEY_PRESS:
        return "key " + detail + " down";
    case XCB_KEY_RELEASE:
        return "key " + detail + " up";
    default:
        return "";
    }
}

} // namespace

TargetWindow::TargetWindow(int left, int top, int width, int height, bool isOver)
    : connection_(xcb_connect(nullptr, nullptr)) {
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    window_ = createWindow(connection_, {left, top, width, height}, 0, isOver,
                           XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                               XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                               XCB_EVENT_MASK_BUTTON_MOTION);
    xcb_map_window(connection_, window_);
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_POINTER_ROOT, window_, XCB_CURRENT_TIME);
    events();
}

TargetWindow::~TargetWindow() {
    xcb_disconnect(connection_);
}

void TargetWindow::openMenu() {
    constexpr std::uint16_t kEvents =
        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION;
    xcb_grab_keyboard(connection_, 1, window_, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                      XCB_GRAB_MODE_ASYNC);
    xcb_grab_pointer(connection_, 1, window_, kEvents, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                     XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    events();
}

std::vector<std::string> TargetWindow::events(std::size_t expected) {
    std::vector<std::string> texts;
    std::ignore = QTest::qWaitFor([&] {
        read(texts);
        return texts.size() >= expected;
    });
    return texts;
}

void TargetWindow::read(std::vector<std::string>& texts) {
    waitFor(connection_);
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)})
        if (std::string text = textOf(*event); !text.empty())
            texts.push_back(std::move(text));
}

std::vector<std::string> TargetWindow::down() {
    std::vector<std::string> all;
    const XReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    for (int button = 1; pointer && button <= kButtons; ++button)
        if (pointer->mask & (XCB_BUTTON_MASK_1 << (button - 1)))
            all.push_back("button " + std::to_string(button));
    const XReply<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(connection_, xcb_query_keymap(connection_), nullptr));
    for (int code = 0; keys && code < kKeyCodes; ++code)
        if (keys->keys[code / 8] & (1 << code % 8))
            all.push_back("key " + std::to_string(code));
    return all;
}

void waitFor(xcb_connection_t* connection) {
    XReply<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

QImage screenshot(xcb_connection_t* connection) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const auto [width, height] = std::pair(screen.width_in_pixels, screen.height_in_pixels);
    const auto cookie =
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, 0, 0, width, height, ~0U);
    const XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, cookie, nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), width, height, QImage::Format_RGB32).copy();
}

xcb_window_t createWindow(xcb_connection_t* connection, const QRect& place, std::uint32_t color,
                          bool isOver, std::uint32_t events) {
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t values[] = {color, isOver, events};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window,
                      xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root,
                      static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                      static_cast<std::uint16_t>(place.width()),
                      static_cast<std::uint16_t>(place.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    return window;
}
