// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// What a hot key that isn't assigned has in its key code.
constexpr UInt32 kNoHotKeyBit = 0x80000000;

/// The key code of a combination without a key: modifiers alone.
constexpr SInt32 kModifiersOnly = 0xFFFF;

/// A hot key's name in plain words, such as "control+shift+X", for a set of Carbon modifier bits
/// and a virtual key code. "-none-" for a negative key code; the modifiers alone, each followed by
/// "+", for kModifiersOnly and for a key without a name. Only command, control, shift and option
/// are named. Whether an F-key needs fn is found out at each call. Null when there is no memory for
/// it.
CFRef<CFString> createKeyComboString(UInt32 modifiers, SInt32 keyCode);
