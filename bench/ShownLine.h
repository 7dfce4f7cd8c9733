// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <xcb/xcb.h>

/// The scan line on the screen, as the display server has it.
class ShownLine {
public:
    /// The line is a window of that size, in pixels.
    ShownLine(int length, int thickness);
    ~ShownLine();
    ShownLine(const ShownLine&) = delete;
    ShownLine& operator=(const ShownLine&) = delete;

    struct Look {
        double moment; ///< on the clock of XServer::now()
        double place;  ///< the centre's y, in pixels
    };

    /// Where it is now. None while it is hidden.
    std::optional<Look> look();

private:
    bool isShown(xcb_window_t window) const;
    void find();

    xcb_connection_t* connection_;
    int length_, thickness_;
    xcb_window_t window_ = XCB_NONE; ///< once it has been seen
};
