// SPDX-License-Identifier: MIT
#include "agent/wayland/WaylandSession.h"

#include "agent/wayland/ShortcutSwitches.h"

#include <utility>

std::unique_ptr<Session> WaylandSession::connect(Guard& guard, std::string& fault) {
    auto display = WaylandDisplay::connect(fault);
    if (!display)
        return nullptr;
    return std::unique_ptr<Session>(new WaylandSession(std::move(display), guard));
}

WaylandSession::WaylandSession(std::unique_ptr<WaylandDisplay> display, Guard& guard)
    : Session(desktop_, windows_, hand_, typist_, overlays_), display_(std::move(display)),
      windows_(*display_), hand_(*display_, guard), typist_(hand_),
      desktop_(*display_, hand_, windows_), overlays_(*display_) {}

std::unique_ptr<Switches> WaylandSession::makeSwitches(Switches::Listener& listener) {
    return std::make_unique<ShortcutSwitches>(listener);
}
