#pragma once

#include "platform/HIToolbox/MacWindows.h"

/// Shows a window as a sheet: at the top of the parent's content, which is dimmed and gets no
/// clicks meanwhile. A parent that is too small for it is made larger. A screen reader reads it out
/// as a notification.
///
/// It takes the keyboard, and keeps it from the parent's content until it is hidden; but not while
/// the keyboard is in a widget of the parent whose property keepsKeyboard, which a form can give
/// it, is true: not before that one gives it up. The sheet may outlive the parent.
OSStatus ShowSheetWindow(WindowRef sheet, WindowRef parent);

/// Takes the sheet off its parent; where the keyboard was before it is again.
OSStatus HideSheetWindow(WindowRef sheet);
