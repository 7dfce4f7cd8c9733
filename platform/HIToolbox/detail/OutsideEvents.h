// SPDX-License-Identifier: MIT
#pragma once

/// Exists while something runs that no input event caused, such as an action of assistive
/// technology. GetCurrentEventKeyModifiers then returns no keys.
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
