// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <bitset>

constexpr quint32 kKeyCount = 256; ///< X11's scan codes

/// The keys that the X11 server reports as down, by scan code. None on other displays.
std::bitset<kKeyCount> keysDown();

inline bool isKeyDown(quint32 scanCode) {
    return scanCode < kKeyCount && keysDown()[scanCode];
}
