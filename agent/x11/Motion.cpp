// SPDX-License-Identifier: MIT
#include "agent/x11/Motion.h"

#include <cmath>
#include <limits>

Motion::Motion(const InputDevice& device, const xcb_screen_t& screen, double far)
    : device_(device), extent_{double(screen.width_in_pixels), double(screen.height_in_pixels)},
      far_(far), farMoment_(-std::numeric_limits<double>::infinity()) {}

void Motion::add(const xcb_input_raw_motion_event_t& event, double moment) {
    if (moment - startMoment_ > kMemory)
        startHere(moment);
    const std::uint32_t* mask = xcb_input_raw_button_press_valuator_mask(&event);
    const xcb_input_fp3232_t* values = xcb_input_raw_button_press_axisvalues(&event);
    for (int axis = 0; axis < 2 && event.valuators_len > 0; ++axis)
        if (mask[0] & (1U << axis))
            go(axis, number(*values++));
    if (distance() < far_)
        return;
    farMoment_ = moment;
    startHere(moment);
}

void Motion::go(int axis, double value) {
    double& place = axis == 0 ? place_.x : place_.y;
    const InputDevice::Axis& range = device_.axes[axis];
    if (!range.isAbsolute) {
        place += value;
        return;
    }
    place = (value - range.least) / (range.most - range.least) * extent_[axis];
    if (!std::exchange(isPlaced_[axis], true))
        (axis == 0 ? start_.x : start_.y) = place;
}

void Motion::restart(double moment) {
    startHere(moment);
    isPlaced_[0] = isPlaced_[1] = false;
}

void Motion::startHere(double moment) {
    start_ = place_;
    startMoment_ = moment;
}

double Motion::distance() const {
    return std::hypot(place_.x - start_.x, place_.y - start_.y);
}
