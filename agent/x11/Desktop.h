// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/x11/XServer.h"

#include <functional>
#include <vector>

/// What the agent has to know of the desktop around it: screens, panels, open menus, whether the
/// screen is locked. Questions to the server are bounded to a few round trips.
class Desktop {
public:
    /// `server` must outlive it.
    explicit Desktop(XServer& server);
    ~Desktop();

    /// The screens with their panels, the main display first. Never empty.
    std::vector<Screen> screens() const;

    /// An area in points of the contract, in pixels.
    Area inPixels(float x, float y, float width, float height) const;

    Place pointer() const;

    /// The menus that are open, the innermost first: mapped override-redirect windows of others
    /// while somebody holds the pointer, but no tooltips, notifications and pictures of a drag.
    std::vector<Area> openMenus() const;

    /// Called when screens come, go or change.
    void onScreens(std::function<void()> changed);
    /// Called with true when the screen gets locked, and with false when it is unlocked.
    void onLock(std::function<void(bool)> changed);
};
