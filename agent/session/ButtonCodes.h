// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <linux/input-event-codes.h>
#include <optional>

// The hand's buttons, numbered as X has them, where the kernel's numbers are asked for.

/// Of the buttons 1 to 3. None for another one.
constexpr std::optional<int> kernelButton(std::uint8_t button) {
    constexpr int kButtons[] = {BTN_LEFT, BTN_MIDDLE, BTN_RIGHT};
    return button >= 1 && button <= 3 ? std::optional(kButtons[button - 1]) : std::nullopt;
}

/// A turn of the wheel by a notch.
struct WheelTurn {
    bool isAcross;
    int notches; ///< 1 is down or right
};

/// What the buttons 4 to 7 stand for. None for another one.
constexpr std::optional<WheelTurn> wheelTurn(std::uint8_t button) {
    if (button < 4 || button > 7)
        return std::nullopt;
    return WheelTurn{button > 5, button % 2 == 0 ? -1 : 1};
}
