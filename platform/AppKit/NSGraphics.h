// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/CoreGraphics/CGContext.h"

// Drawing into the view whose drawRect is running; outside of it nothing is drawn.

/// Fills with the palette's ground for texts: white, or dark in a dark theme.
void NSEraseRect(const NSRect& rect);

enum NSCompositingOperation {
    NSCompositeCopy = 1,       ///< replaces what is there
    NSCompositeSourceOver = 2, ///< lies over it, as far as the colour is transparent
};

/// Fills with the current colour, by NSCompositeCopy. An empty rectangle fills nothing.
void NSRectFill(const NSRect& rect);
void NSRectFillUsingOperation(const NSRect& rect, NSCompositingOperation operation);

/// Draws along the inside of the rectangle's edges in the current colour; the width in points.
void NSFrameRectWithWidth(const NSRect& rect, float width);

/// What drawing goes by: its colour and its line width.
class NSGraphicsContext {
public:
    /// Null outside of drawing. Borrowed, until the drawing ends.
    static NSGraphicsContext* currentContext();

    /// Whether the edges of shapes are smoothed. They aren't at first.
    bool shouldAntialias() const;
    void setShouldAntialias(bool antialias);

    /// The view's Core Graphics context, in its coordinates: the origin at the top left, y growing
    /// downward.
    CFRef<CGContext> graphicsPort() const;

    static void saveGraphicsState();
    /// Goes back to the last saved state that hasn't been restored yet.
    static void restoreGraphicsState();
};
