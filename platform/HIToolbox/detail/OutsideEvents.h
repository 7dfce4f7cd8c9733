// SPDX-License-Identifier: MIT
#pragma once

/// Lives while something runs that no event of the user's brought about, such as an action that
/// assistive technology asks for. GetCurrentEventKeyModifiers gives no keys then.
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
