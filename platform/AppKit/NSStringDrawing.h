// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSFont.h"
#include "platform/AppKit/NSGeometry.h"
#include "platform/CoreFoundation/CFString.h"

/// How a text is drawn; its colour is that of the view's other texts.
struct TextAttributes {
    NSFont font;
};

/// The room that one line of text takes, in points.
NSSize sizeWithAttributes(const CFString* text, const TextAttributes& attributes);
/// Draws one line of text in black, whatever the colour of other texts, with its top-left corner at
/// the point.
void drawAtPoint(const CFString* text, NSPoint point, const TextAttributes& attributes);

/// Draws one line of text from the rectangle's left side, in the middle of its height. A text that
/// is too wide is shortened in its middle. See NSGraphics.h.
void NSDrawString(const CFString* text, const NSRect& rect, const TextAttributes& attributes);
