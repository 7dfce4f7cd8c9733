// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <functional>

/// Whether a compositor draws the windows, so that they can be transparent. It is followed as it
/// comes and goes; without XFIXES what was found first stays.
class Compositor {
public:
    /// `changed` is called after each change. Lives as long as `server` hands out events.
    Compositor(XServer& server, std::function<void()> changed);

    bool isRunning() const { return isRunning_; }

private:
    void follow(XServer& server, xcb_atom_t selection);

    bool isRunning_ = false;
    std::function<void()> changed_;
};
