// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/MacWindows.h"

/// Shows a window as a sheet: at the top of the parent's content, which is dimmed and gets no
/// clicks. A parent that is too small for it is made larger. A screen reader reads it out as a
/// notification.
///
/// Holds the keyboard focus until it is hidden. If the focus is in a widget with the form property
/// keepsKeyboard, waits until that widget loses it. The sheet may outlive the parent.
OSStatus ShowSheetWindow(WindowRef sheet, WindowRef parent);

/// Takes the sheet off its parent. The keyboard focus goes back to where it was.
OSStatus HideSheetWindow(WindowRef sheet);
