// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/x11/XServer.h"

#include <optional>
#include <vector>

/// Finds what other programs have put over all windows: their open menus, and a lock screen.
class PopUps {
public:
    /// `server` must outlive it.
    explicit PopUps(XServer& server);
    ~PopUps();
    PopUps(const PopUps&) = delete;
    PopUps& operator=(const PopUps&) = delete;

    /// The areas of the open menus, the innermost first: mapped override-redirect windows of
    /// others, and Openbox's own menus, while somebody holds the pointer, but no tooltips,
    /// notifications, pictures of a drag, and none over a whole screen. Without the shadow that a
    /// program draws around. A few round trips.
    std::vector<Area> menus(const std::vector<Screen>& screens);

    /// Whether another program's override-redirect window over a whole screen is up and holds
    /// keyboard and pointer, as xscreensaver's and i3lock's.
    bool lockWindowIsUp(const std::vector<Screen>& screens);

private:
    struct Window {
        xcb_window_t id;
        Area area;
        bool isOver; ///< override-redirect
    };

    std::optional<xcb_window_t> openboxWindow();
    bool isMenuOf(xcb_window_t manager, xcb_window_t window);
    bool isOurs(xcb_window_t window) const;
    std::vector<Window> overWindows();
    std::vector<Window> inputOutput(const std::vector<xcb_window_t>& ids);
    bool pointerIsHeld();
    bool keyboardIsHeld();

    XServer& server_;
    xcb_window_t probe_; ///< never mapped
};
