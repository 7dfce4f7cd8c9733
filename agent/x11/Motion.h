// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/x11/InputDevices.h"

/// How far a pointing device was moved, from one place to another: what a hand trembles doesn't add
/// up. Distances are pixels, moments seconds on XServer's clock.
class Motion {
public:
    /// `far` counts as far. An absolute device covers `screen`.
    Motion(const InputDevice& device, const xcb_screen_t& screen, double far);

    /// A raw motion event of the device.
    void add(const xcb_input_raw_motion_event_t& event, double moment);

    /// From now on distance() counts from here, for an absolute device from its next place: where
    /// it was heard last may be long ago.
    void restart(double moment);

    double distance() const;

    /// When it last got far from where it had been, at most kMemory before. Infinitely long ago if
    /// it never did.
    double farMoment() const { return farMoment_; }

    static constexpr double kMemory = 5;

private:
    void startHere(double moment);
    void go(int axis, double value);

    InputDevice device_;
    double extent_[2]; ///< the screen's
    double far_;
    Place place_, start_;
    bool isPlaced_[2] = {}; ///< of absolute axes: whether a value is known
    double startMoment_ = 0;
    double farMoment_;
};
