// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/HIToolbox/CarbonEvents.h"

// The custom scan area's chooser: a transparent window over all displays, on which the user drags
// the area. One at a time. Rectangles are in global display coordinates. While one is being dragged
// its width or height may be negative.

/// Lets the user choose and returns when that is done. `area` is shown as the current one. True
/// when the user has accepted an area; it is then in `area`, standardised. False with `area`
/// unchanged when the user has cancelled, or the chooser can't be shown or is shown already.
bool chooseArea(CGRect* area);

/// Why the last chooser couldn't be shown or used. noErr when it could.
OSStatus chooseAreaError();

// Called by the overlay window's events, and only while it exists.

/// Lays the window over all displays.
void updateOverlayBounds();

/// Draws a complete frame.
void drawOverlay();

/// The window's event handler. `userData` is a flag that is set when the user accepts.
OSStatus overlayHandler(EventHandlerCallRef nextHandler, EventRef event, void* userData);
