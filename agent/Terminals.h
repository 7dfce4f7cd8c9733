// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What an action presses in a program.
struct Shortcut {
    std::string keys;  ///< X's names, as in "Shift+Control+v"
    std::string fault; ///< why the program can't, in a sentence; empty if it can
};

/// Terminals give Control with a letter to what runs inside: it isn't Copy there, but ends the
/// program. `program` is the second part of WM_CLASS.
Shortcut shortcutIn(const std::string& program, const std::string& keys);
