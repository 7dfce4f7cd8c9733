// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/HIToolbox/CarbonEvents.h"

// The custom scan area's chooser: a transparent window over all displays, on which the user drags
// the area out. One at a time. All rectangles are in global display coordinates; one that is being
// dragged may have a negative width or height.

/// Lets the user choose and returns when that is done. `area` is shown as the current one. True
/// when the user accepted one, which is then in `area`, with a width and height of zero or more;
/// false, with `area` as it was, when the user gave up or the chooser can't be shown, or is shown
/// already.
bool chooseArea(CGRect* area);

/// Why the last chooser couldn't be shown, or not be used; noErr when it could.
OSStatus chooseAreaError();

// What the overlay window's events lead to; only while there is one.

/// Lays the window over all displays.
void updateOverlayBounds();

/// Draws one complete frame.
void drawOverlay();

/// The window's event handler. `userData` is the flag that is set when the user accepts.
OSStatus overlayHandler(EventHandlerCallRef nextHandler, EventRef event, void* userData);
