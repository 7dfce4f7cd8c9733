// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <cstdint>
#include <vector>
#include <xcb/xinput.h>

/// A physical keyboard or mouse.
struct InputDevice {
    /// How far the device's values go along x or y.
    struct Axis {
        bool isAbsolute = false; ///< as of a tablet; else values are pixels since the last one
        double least = 0, most = 0;
    };

    xcb_input_device_id_t id = 0;
    bool hasKeys = false;
    bool hasButtons = false;
    Axis axes[2];
};

/// A value of an axis.
double number(xcb_input_fp3232_t value);

/// Those that are there and enabled. Without XTEST's own, and without touch screens: a touch is
/// meant for its place.
std::vector<InputDevice> inputDevices(XServer& server);
