// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/KeyCodes.h"

class QKeyEvent;

/// The virtual key code, 0 to 127, of the key with this scan code of X11 or Wayland. It stands for
/// the key's place, not its letter. Keys that only PCs have get the code of Apple's key in the same
/// place: Insert is help, Print Screen F13, Scroll Lock F14, Pause F15, Num Lock clear. kNoKeyCode
/// for any other key.
UInt16 virtualKeyCode(UInt32 scanCode);

/// Whether the key is a modifier key, by its place or by the active layout.
bool isModifierKey(const QKeyEvent& event);
