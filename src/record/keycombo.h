// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// This bit in a hot key's key code means that it isn't assigned.
constexpr UInt32 kNoHotKeyBit = 0x80000000;

/// The key code of modifiers without a key.
constexpr SInt32 kModifiersOnly = 0xFFFF;

/// A hot key's name in words, such as "control+shift+X", from Carbon modifier bits and a virtual
/// key code. "-none-" for a negative key code. For kModifiersOnly and a key without a name: the
/// modifiers alone, each followed by "+". Names only command, control, shift and option. Each call
/// finds out whether an F-key needs fn. Null when memory is short.
CFRef<CFString> createKeyComboString(UInt32 modifiers, SInt32 keyCode);
