// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The programs' windows, and what can be done with them from outside. A session that doesn't tell
/// something gives what stands for unknown. A number is a window's as long as it is there.
class Windows {
public:
    using Id = std::uint32_t;

    struct Window {
        Id id;
        std::string title; ///< UTF-8
    };

    /// A window that is shown.
    struct Shown {
        std::uint32_t process; ///< 0 if it doesn't say
        Area area;             ///< without its frame
    };

    virtual ~Windows() = default;

    /// The active window, unless it is the desktop's or a panel.
    virtual std::optional<Id> active() const = 0;

    /// The program's name as it gives it itself: "XTerm". Empty without.
    virtual std::string programOf(Id window) const = 0;

    /// The process that made it, as it says. 0 if it doesn't.
    virtual std::uint32_t processOf(Id window) const = 0;

    /// Where a window of that program is shown. None when there is no such window.
    virtual std::optional<Area> placeOf(const std::string& program) const = 0;

    /// The windows that a task bar has, the one that was used last first.
    virtual std::vector<Window> windows() const = 0;

    /// All that are shown, panels too, the topmost first. Empty when nobody tells.
    virtual std::vector<Shown> shown() const = 0;

    /// What lies there, with its frame; the whole screen where no window is.
    virtual Area windowAt(Place place) const = 0;

    /// False when it can't be done for others here.
    virtual bool close(Id window) = 0;
    virtual bool activate(Id window) = 0;
    /// Shows the desktop without windows, or the windows again.
    virtual bool toggleDesktop() = 0;

    /// Has the desktop do what it does at a click with the other button beside all windows: many
    /// show their menu of applications then, in the middle of the screen.
    virtual void askForRootMenu() = 0;
};
