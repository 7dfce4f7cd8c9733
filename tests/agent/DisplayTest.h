// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QImage>

#include <cstring>

/// A test on a display of its own: a server, the agent's connection to it, and another program's.
template <class Application>
class DisplayTestWith : public ApplicationTest<Application> {
protected:
    static constexpr int kWidth = 800, kHeight = 600;

    DisplayTestWith() : server_(XServer::connect(fault_)), others_(XServer::connect(fault_)) {}

    void SetUp() override { ASSERT_TRUE(server_ && others_) << fault_; }

    /// What is on the screen.
    QImage screenshot() {
        xcb_connection_t* connection = others_->connection();
        const XReply<xcb_get_image_reply_t> reply(
            xcb_get_image_reply(connection,
                                xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP,
                                              others_->root(), 0, 0, kWidth, kHeight, ~0U),
                                nullptr));
        if (!reply)
            return {};
        return QImage(xcb_get_image_data(reply.get()), kWidth, kHeight, QImage::Format_RGB32)
            .copy();
    }

    /// A window of the other program, shown on top. Window managers and the agent's search see it
    /// as one that is put over the others, or as an ordinary one.
    xcb_window_t otherWindow(const QRect& place, std::uint32_t color = 0xffffff, bool isOver = true,
                             bool isShown = true) {
        xcb_connection_t* connection = others_->connection();
        const xcb_window_t window = xcb_generate_id(connection);
        const std::uint32_t values[] = {color, isOver, XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(
            connection, XCB_COPY_FROM_PARENT, window, others_->root(),
            static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
            static_cast<std::uint16_t>(place.width()), static_cast<std::uint16_t>(place.height()),
            0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        if (isShown)
            xcb_map_window(connection, window);
        sync();
        return window;
    }

    /// Gives a window of the other program a property of 32-bit numbers.
    void setNumbers(xcb_window_t window, const char* name,
                    const std::vector<std::uint32_t>& numbers) {
        xcb_change_property(others_->connection(), XCB_PROP_MODE_REPLACE, window,
                            others_->atom(name), XCB_ATOM_CARDINAL, 32,
                            static_cast<std::uint32_t>(numbers.size()), numbers.data());
        sync();
    }

    /// Until the server has done what was asked for over both connections.
    void sync() {
        for (XServer* each : {server_.get(), others_.get()}) {
            const auto cookie = xcb_get_input_focus(each->connection());
            const XReply<xcb_get_input_focus_reply_t> reply(
                xcb_get_input_focus_reply(each->connection(), cookie, nullptr));
        }
    }

private:
    std::string fault_;
    XvfbServer display_{kWidth, kHeight};

protected:
    std::unique_ptr<XServer> server_, others_;
};

using DisplayTest = DisplayTestWith<QCoreApplication>;
