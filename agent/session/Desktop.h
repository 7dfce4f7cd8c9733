// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"

#include <functional>
#include <vector>

/// What the agent has to know of the desktop around it: screens, panels, open menus, whether the
/// screen is locked. No answer takes longer than a few round trips.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// The screens with their panels, the main display first. Never empty. Of screens that show the
    /// same only one is there.
    virtual std::vector<Screen> screens() const = 0;

    /// Of the mouse.
    virtual Place pointer() const = 0;

    /// The menus that are open, the innermost first, but no tooltips, notifications and pictures of
    /// a drag. None when nobody tells.
    virtual std::vector<Area> openMenus() const = 0;

    /// Whether openMenus knows of every program's. Else the whole screen is scanned while one is
    /// open.
    virtual bool tellsMenus() const { return true; }

    /// Whether a program covers a screen with a window of its own and holds keyboard and pointer,
    /// as lock screens do that tell nobody. To be asked when a scan starts.
    virtual bool lockWindowIsUp() const = 0;

    /// Called when screens come, go or change, perhaps more than once for a change.
    virtual void onScreens(std::function<void()> changed) = 0;
    /// Called when the active window is another one.
    virtual void onActiveWindow(std::function<void()> changed) = 0;
};
