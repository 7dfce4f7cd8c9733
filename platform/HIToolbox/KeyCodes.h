#pragma once

#include "platform/CoreFoundation/CFBase.h"

class QKeyEvent;

/// What stands for the code of a key that no Apple keyboard has.
constexpr UInt16 kNoKeyCode = 0xFFFF;

/// The virtual key code, 0 to 127, of the key with this code of X11 or Wayland. It names the key by
/// its place, whatever letter the active layout writes on it. Keys that only PC keyboards have
/// stand for those that Apple's have in their place: Insert for help, Print Screen for F13, Scroll
/// Lock for F14, Pause for F15, Num Lock for clear. kNoKeyCode for a key without a counterpart.
UInt16 virtualKeyCode(UInt32 scanCode);

/// Whether the key is held together with others and means nothing alone: by its place, or because
/// the active layout makes a modifier of it.
bool isModifierKey(const QKeyEvent& event);
