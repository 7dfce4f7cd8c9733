// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSFont.h"
#include "platform/AppKit/NSGeometry.h"
#include "platform/CoreFoundation/CFString.h"

/// How a text is drawn. Its colour is that of the view's other texts.
struct TextAttributes {
    NSFont font;
};

/// The size of a line of text, in points.
NSSize sizeWithAttributes(const CFString* text, const TextAttributes& attributes);
/// Draws a line of text in black, with its top-left corner at the point.
void drawAtPoint(const CFString* text, NSPoint point, const TextAttributes& attributes);

/// Draws a line of text, left-aligned and vertically centred. A text that is too wide is shortened
/// in its middle. See NSGraphics.h.
void NSDrawString(const CFString* text, const NSRect& rect, const TextAttributes& attributes);
