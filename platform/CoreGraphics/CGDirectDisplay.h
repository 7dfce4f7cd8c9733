// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/CoreGraphics/CGGeometry.h"

// Quartz Display Services: the displays of the desktop. A point is the same length on all of them:
// one of the main display. So displays that touch on the desktop also touch here, whatever their
// scales.

using CGDirectDisplayID = UInt32;

using CGError = SInt32;
constexpr CGError kCGErrorSuccess = 0;
constexpr CGError kCGErrorNoneAvailable = 1011;

/// The display where the desktop's panel is.
CGDirectDisplayID CGMainDisplayID();

/// Writes at most `maxDisplays` displays to `displays`, the main one first. `count` receives how
/// many. kCGErrorNoneAvailable when there is none.
CGError CGGetActiveDisplayList(UInt32 maxDisplays, CGDirectDisplayID* displays, UInt32* count);

/// The display's place on the desktop. The main display's top-left corner is 0, 0. Empty when the
/// display is gone.
CGRect CGDisplayBounds(CGDirectDisplayID display);
