// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/x11/XServer.h"

#include <optional>
#include <string>
#include <vector>

/// The programs' windows, and what a window manager does with them by EWMH's requests. Each call is
/// a few round trips to the server.
class WindowManager {
public:
    struct Window {
        xcb_window_t id;
        std::string title; ///< UTF-8
    };

    /// `server` must outlive it.
    explicit WindowManager(XServer& server) : server_(server) {}

    /// A window that is shown.
    struct Shown {
        std::uint32_t process; ///< 0 if it doesn't say
        Area area;             ///< without its frame
    };

    /// The active window, unless it is the desktop's or a panel.
    std::optional<xcb_window_t> active() const;

    /// The second part of WM_CLASS, the program's: "XTerm". Empty without.
    std::string programOf(xcb_window_t window) const;

    /// The process that made it, as it says. 0 if it doesn't.
    std::uint32_t processOf(xcb_window_t window) const;

    /// Where it is shown. None when it isn't.
    std::optional<Area> areaOf(xcb_window_t window) const;

    /// Where a window of that program is shown. None when there is no such window.
    std::optional<Area> placeOf(const std::string& program) const;

    /// The windows that a task bar has, the one that was used last first.
    std::vector<Window> windows() const;

    /// All that it manages, panels too, the topmost first. Empty without a window manager.
    std::vector<Shown> shown() const;

    /// False when the window manager can't.
    bool close(xcb_window_t window);
    bool activate(xcb_window_t window);
    /// Shows the desktop without windows, or the windows again.
    bool toggleDesktop();

    /// Has the window manager do what it does at a click with the other button beside all windows:
    /// many show their menu of applications then, in the middle of the screen.
    void askForRootMenu();

    /// What lies there, with its frame; the whole screen where no window is.
    Area windowAt(Place place) const;

private:
    bool supports(const char* name) const;
    bool request(const char* name, xcb_window_t window, const std::vector<std::uint32_t>& data);
    template <class Event>
    void send(const Event& event, std::uint32_t mask);
    std::vector<std::uint32_t> rootNumbers(const char* name) const;
    std::vector<xcb_window_t> all() const;
    bool isOrdinary(xcb_window_t window) const;

    XServer& server_;
};
