// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

/// The code of keys that Apple keyboards don't have.
constexpr std::uint16_t kNoKeyCode = 0xFFFF;

/// The virtual key code, 0 to 127, of the key with this scan code of X11 or Wayland. It stands for
/// the key's place, not its letter. Keys that only PCs have get the code of Apple's key in the same
/// place: Insert is help, Print Screen F13, Scroll Lock F14, Pause F15, Num Lock clear. kNoKeyCode
/// for any other key.
std::uint16_t virtualKeyCode(std::uint32_t scanCode);

/// The reverse: the scan codes of all keys in the place of this virtual key code, such as F13 and
/// Print Screen. Empty for a code that no key has.
std::vector<std::uint32_t> scanCodes(std::uint16_t virtualKey);
