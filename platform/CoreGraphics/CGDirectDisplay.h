// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/CoreGraphics/CGGeometry.h"

// Quartz Display Services: the displays that make up the desktop. A point is one of the main
// display's, on all of them, so that displays which touch on the desktop touch in their bounds,
// whatever the scale of each.

using CGDirectDisplayID = UInt32;

using CGError = SInt32;
constexpr CGError kCGErrorSuccess = 0;
constexpr CGError kCGErrorNoneAvailable = 1011;

/// The display where the desktop's panel is.
CGDirectDisplayID CGMainDisplayID();

/// Lists the displays, the main one first: `maxDisplays` at most go to `displays`. `count` receives
/// how many. kCGErrorNoneAvailable when there is none.
CGError CGGetActiveDisplayList(UInt32 maxDisplays, CGDirectDisplayID* displays, UInt32* count);

/// The display's place on the desktop, in global coordinates: the main display's begins at 0, 0.
/// Empty for a display that is gone.
CGRect CGDisplayBounds(CGDirectDisplayID display);
