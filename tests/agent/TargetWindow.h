// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <string>
#include <vector>
#include <xcb/xcb.h>

/// Returns when the server has done all that was asked for: what it told before is in the queue.
void waitFor(xcb_connection_t* connection);

/// A window that isn't mapped yet. `isOver`: as menus and locks do, it keeps away from window
/// managers.
xcb_window_t createWindow(xcb_connection_t* connection, const QRect& place, std::uint32_t color,
                          bool isOver, std::uint32_t events);

/// What is on the screen; null without an answer.
QImage screenshot(xcb_connection_t* connection);

/// A window of another program, on a connection of its own: what it is told by the server.
class TargetWindow {
public:
    /// It has the focus and covers this part of the screen.
    TargetWindow(int left, int top, int width, int height, bool isOver = true);
    ~TargetWindow();
    TargetWindow(const TargetWindow&) = delete;
    TargetWindow& operator=(const TargetWindow&) = delete;

    /// Holds keyboard and pointer, as an open menu does.
    void openMenu();

    /// What came since the last call: "press 1 at 5,6", "release 1 at 5,6", "move to 5,6", "key 38
    /// down", "key 38 up". Places are the screen's. Waits for as many as are expected, five
    /// seconds at most, while the test's event loop runs.
    std::vector<std::string> events(std::size_t expected = 0);

    /// What is down now, of buttons and of keys: "button 1", "key 38".
    std::vector<std::string> down();

    xcb_connection_t* connection() const { return connection_; }

    xcb_window_t root() const { return root_; }

    xcb_window_t window() const { return window_; }

private:
    void read(std::vector<std::string>& texts);

    xcb_connection_t* connection_;
    xcb_window_t root_ = 0, window_ = 0;
};
