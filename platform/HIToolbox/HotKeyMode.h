#pragma once

#include "platform/CoreFoundation/CFBase.h"

// A time in which no key acts anywhere but in the window that has the keyboard: the desktop's own
// shortcuts and those of other programs rest. On X11 the window grabs the keyboard; where that
// isn't possible, as on Wayland or while another program has grabbed it, they act as ever.
//
// The grab lasts only while the window is active, and at most 30 seconds, for a screen can't be
// locked meanwhile.

using OptionBits = UInt32;

enum : OptionBits { kHIHotKeyModeAllDisabled = 1 };

/// Begins such a time for the active window. The token ends it.
void* PushSymbolicHotKeyMode(OptionBits options);

/// Ends it. A key that is still held down acts nowhere until it has come up: neither its
/// repetitions nor, if that is being handled, its press go any further.
void PopSymbolicHotKeyMode(void* token);
