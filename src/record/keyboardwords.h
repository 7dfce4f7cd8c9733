// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/KeyboardLayout.h"

#include <string>
#include <vector>

// Keys as they are called on a PC's keyboard, with the layout that is active. createKeyComboString
// calls them by their place on Apple's US keyboard. Texts are UTF-8.

/// As in "Ctrl+Z". Empty for a hot key without a key.
std::string keyboardWords(const KeyboardLayout& layout, UInt32 modifiers, SInt32 keyCode);

struct NamedKey {
    std::string name;
    UInt16 code;
};

/// The keys that a hot key can have, in the order in which somebody looks for one: letters, digits,
/// other characters, F-keys, those with names, the keypad's. No modifiers, and none that no
/// keyboard sends. Names are unique.
std::vector<NamedKey> keysByName(const KeyboardLayout& layout);
