// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

// A mode in which keys act in the active window only. Shortcuts of the desktop and of other
// programs are off. On X11 the window grabs the keyboard. Under Wayland, or while another program
// has grabbed the keyboard, those shortcuts still work.
//
// The grab lasts only while the window is active, and at most 30 seconds: during it the screen
// can't be locked.

using OptionBits = UInt32;

enum : OptionBits { kHIHotKeyModeAllDisabled = 1 };

/// Begins the mode for the active window. The token ends it. Keys that are already down do nothing
/// until they come up, and no key repeats.
void* PushSymbolicHotKeyMode(OptionBits options);

/// Starts the thirty seconds again, and grabs the keyboard again if another program took it.
void RenewSymbolicHotKeyMode(void* token);

/// Ends the mode. Keys that are down do nothing until they come up; neither their repetitions nor
/// the current press count. Null is ignored.
void PopSymbolicHotKeyMode(void* token);

/// Whether the desktop keeps its shortcuts even then, as Wayland compositors do.
bool desktopKeepsItsShortcuts();
