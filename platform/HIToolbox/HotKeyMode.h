// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

// A mode in which keys act in the active window only. The shortcuts of the desktop and of other
// programs rest. On X11 the window grabs the keyboard. In a session with Wayland, or while another
// program has grabbed the keyboard, those shortcuts act as ever.
//
// The grab lasts only while the window is active, and at most 30 seconds: the screen can't be
// locked during it.

using OptionBits = UInt32;

enum : OptionBits { kHIHotKeyModeAllDisabled = 1 };

/// Begins the mode for the active window. The token ends it. Keys that are down already go to
/// nobody until they come up, and no key repeats.
void* PushSymbolicHotKeyMode(OptionBits options);

/// The thirty seconds start anew, and the keyboard is grabbed if another program had it.
void RenewSymbolicHotKeyMode(void* token);

/// Ends the mode. Keys that are down are ignored until they come up: their repetitions, and also
/// the press that is being handled. Does nothing for null.
void PopSymbolicHotKeyMode(void* token);

/// Whether the desktop takes its own shortcuts even then, as Wayland's compositors do.
bool desktopKeepsItsShortcuts();
