// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Desktop.h"
#include "agent/wayland/VirtualHand.h"
#include "agent/wayland/WaylandWindows.h"

/// What a compositor tells. Its own units stand for pixels, so every scale is 1. It tells of no
/// panels and no menus; a locked screen hears no shortcuts.
class WaylandDesktop final : public Desktop {
public:
    /// All must outlive it.
    WaylandDesktop(WaylandDisplay& display, const VirtualHand& hand, WaylandWindows& windows);

    std::vector<Screen> screens() const override;

    Place pointer() const override { return hand_.place(); }

    std::vector<Area> openMenus() const override { return {}; }

    bool tellsMenus() const override { return false; }

    bool lockWindowIsUp() const override { return false; }

    void onScreens(std::function<void()> changed) override;
    void onActiveWindow(std::function<void()> changed) override;

private:
    WaylandDisplay& display_;
    const VirtualHand& hand_;
    WaylandWindows& windows_;
};
