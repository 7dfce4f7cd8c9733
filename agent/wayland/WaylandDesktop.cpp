// SPDX-License-Identifier: MIT
#include "agent/wayland/WaylandDesktop.h"

#include <utility>

WaylandDesktop::WaylandDesktop(WaylandDisplay& display, const VirtualHand& hand,
                               WaylandWindows& windows)
    : display_(display), hand_(hand), windows_(windows) {}

/// Without a screen, as while the last one is changed, there is a small one that nobody sees.
std::vector<Screen> WaylandDesktop::screens() const {
    std::vector<Screen> screens;
    for (const WaylandOutput* output : display_.outputs())
        screens.push_back({.area = output->area});
    if (screens.empty())
        screens.push_back({.area = {0, 0, 640, 480}});
    return screens;
}

void WaylandDesktop::onScreens(std::function<void()> changed) {
    display_.onOutputs(std::move(changed));
}

void WaylandDesktop::onActiveWindow(std::function<void()> changed) {
    windows_.onActive(std::move(changed));
}
