// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/QuickDraw/QuickDraw.h"

// The Window Manager. Places and sizes are in points; global coordinates have their origin at the
// top-left corner of the main display, and y grows downward.

using WindowRef = class CarbonWindow*;

/// The desktop can't have such a window: on Wayland none may cover the screens.
constexpr OSStatus errWindowClassNotSupported = -5601;
/// Another program holds the keyboard and doesn't let it go.
constexpr OSStatus errCouldntSetUserFocus = -5609;

enum WindowClass : UInt32 {
    kOverlayWindowClass = 14, ///< without a frame, transparent where nothing is drawn, above all
};

using WindowAttributes = UInt32;

enum : WindowAttributes {
    kWindowOpaqueForEventsAttribute = 1u << 18, ///< gets the clicks in its transparent parts too
    kWindowStandardHandlerAttribute = 1u << 25,
};

/// Makes a window, hidden still. errWindowClassNotSupported for another class as well.
OSStatus CreateNewWindow(WindowClass windowClass, WindowAttributes attributes,
                         const Rect* contentBounds, WindowRef* window);

/// Takes the window off the screen and ends it, with all handlers that are installed on it. May be
/// called while one of them runs.
void DisposeWindow(WindowRef window);

void ShowWindow(WindowRef window);

/// Brings the window to the front.
void SelectWindow(WindowRef window);

/// Moves the window's top-left corner, in global coordinates; `front` also brings it to the front.
void MoveWindow(WindowRef window, SInt16 h, SInt16 v, bool front);

/// `update` also has the window drawn anew.
void SizeWindow(WindowRef window, SInt16 width, SInt16 height, bool update);

/// The window's picture. Drawing in it shows when the drawing context is flushed.
GrafPtr GetWindowPort(WindowRef window);
