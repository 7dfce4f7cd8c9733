// SPDX-License-Identifier: MIT
#pragma once

/// While one lives, what runs is no answer to an event of the user's, such as an action that
/// assistive technology asks for: GetCurrentEventKeyModifiers then gives no keys.
class OutsideEvents {
public:
    OutsideEvents() { ++depth_; }

    ~OutsideEvents() { --depth_; }

    OutsideEvents(const OutsideEvents&) = delete;
    OutsideEvents& operator=(const OutsideEvents&) = delete;

    static bool areWe() { return depth_ > 0; }

private:
    static inline int depth_ = 0;
};
