// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/MacWindows.h"

/// Shows a window as a sheet at the top of the parent's content. The content is dimmed and gets no
/// clicks. A parent that is too small is enlarged. Screen readers read the sheet out as a
/// notification.
///
/// Holds keyboard focus until it is hidden. If focus is in a widget with the dynamic property
/// keepsKeyboard, waits until that widget loses it. The sheet may outlive the parent.
OSStatus ShowSheetWindow(WindowRef sheet, WindowRef parent);

/// Takes the sheet off its parent. Keyboard focus returns to where it was.
OSStatus HideSheetWindow(WindowRef sheet);
