// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"
#include "tests/agent/TargetWindow.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QTest>

#include <xcb/xtest.h>

/// A test on a display of its own: a server, the agent's connection to it, and another program's.
template <class Application>
class DisplayTestWith : public ApplicationTest<Application> {
protected:
    static constexpr int kWidth = 800, kHeight = 600;
    static constexpr QRgb kWhite = qRgb(255, 255, 255), kRed = qRgb(200, 0, 0);
    static constexpr QRgb kBlue = qRgb(0, 0, 255), kBlack = qRgb(0, 0, 0);

    DisplayTestWith() : server_(XServer::connect(fault_)), others_(XServer::connect(fault_)) {}

    void SetUp() override { ASSERT_TRUE(server_ && others_) << fault_; }

    QImage screenshot() { return ::screenshot(others_->connection()); }

    /// A window of the other program, shown on top. Window managers and the agent's search see it
    /// as one that is put over the others, or as an ordinary one.
    xcb_window_t otherWindow(const QRect& place, std::uint32_t color = 0xffffff, bool isOver = true,
                             bool isShown = true) {
        xcb_connection_t* connection = others_->connection();
        const xcb_window_t window =
            createWindow(connection, place, color, isOver, XCB_EVENT_MASK_BUTTON_PRESS);
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
        for (XServer* each : {server_.get(), others_.get()})
            waitFor(each->connection());
    }

    QRgb colorAt(int x, int y) { return screenshot().pixel(x, y); }

    /// The window of the other program that gets a click there.
    xcb_window_t clickedAt(std::int16_t x, std::int16_t y) {
        others_->onEvent([this](const xcb_generic_event_t& event) {
            if ((event.response_type & 0x7f) == XCB_BUTTON_PRESS)
                clicked_ = reinterpret_cast<const xcb_button_press_event_t&>(event).event;
        });
        xcb_connection_t* connection = others_->connection();
        xcb_test_fake_input(connection, XCB_MOTION_NOTIFY, 0, 0, others_->root(), x, y, 0);
        xcb_test_fake_input(connection, XCB_BUTTON_PRESS, 1, 0, XCB_NONE, 0, 0, 0);
        xcb_test_fake_input(connection, XCB_BUTTON_RELEASE, 1, 0, XCB_NONE, 0, 0, 0);
        others_->flush();
        EXPECT_TRUE(QTest::qWaitFor([this] { return clicked_ != XCB_NONE; }));
        return clicked_;
    }

private:
    std::string fault_;
    xcb_window_t clicked_ = XCB_NONE;
    XvfbServer display_{kWidth, kHeight};

protected:
    std::unique_ptr<XServer> server_, others_;
};

using DisplayTest = DisplayTestWith<QCoreApplication>;
