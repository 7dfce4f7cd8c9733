// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/QuickDraw/QuickDraw.h"

// The Window Manager. Places and sizes are in points. The origin of global coordinates is the main
// display's top-left corner; y grows downward.

using WindowRef = class CarbonWindow*;

/// The desktop can't have such a window. On Wayland no window may cover the screens.
constexpr OSStatus errWindowClassNotSupported = -5601;
/// Another program holds the keyboard and doesn't release it.
constexpr OSStatus errCouldntSetUserFocus = -5609;

enum WindowClass : UInt32 {
    kOverlayWindowClass = 14, ///< without a frame, transparent where nothing is drawn, above all
};

using WindowAttributes = UInt32;

enum : WindowAttributes {
    kWindowOpaqueForEventsAttribute = 1u << 18, ///< also gets clicks in its transparent parts
    kWindowStandardHandlerAttribute = 1u << 25,
};

/// Makes a window, hidden at first. errWindowClassNotSupported also for any other class.
OSStatus CreateNewWindow(WindowClass windowClass, WindowAttributes attributes,
                         const Rect* contentBounds, WindowRef* window);

/// Hides and destroys the window and its handlers. May be called while one of them runs.
void DisposeWindow(WindowRef window);

/// Its name: what screen readers call it.
OSStatus SetWindowTitleWithCFString(WindowRef window, const CFString* title);

void ShowWindow(WindowRef window);

/// Brings the window to the front.
void SelectWindow(WindowRef window);

/// Moves the window's top-left corner, in global coordinates. `front` also brings it to the front.
void MoveWindow(WindowRef window, SInt16 h, SInt16 v, bool front);

/// `update` also redraws the window.
void SizeWindow(WindowRef window, SInt16 width, SInt16 height, bool update);

/// The window's port. Drawing shows when the drawing context is flushed.
GrafPtr GetWindowPort(WindowRef window);
