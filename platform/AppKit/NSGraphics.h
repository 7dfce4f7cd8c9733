// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/CoreGraphics/CGContext.h"

// Drawing into the view whose drawRect is running. At other times nothing is drawn.

/// Fills with the palette's base colour for text: white, or dark in a dark theme.
void NSEraseRect(const NSRect& rect);

enum NSCompositingOperation {
    NSCompositeCopy = 1,       ///< replaces what is there
    NSCompositeSourceOver = 2, ///< is blended by the colour's alpha
};

/// Fills with the current colour, with NSCompositeCopy. An empty rectangle fills nothing.
void NSRectFill(const NSRect& rect);
void NSRectFillUsingOperation(const NSRect& rect, NSCompositingOperation operation);

/// Draws along the inside of the rectangle's edges in the current colour. The width is in points.
void NSFrameRectWithWidth(const NSRect& rect, float width);

/// The state of drawing: colour, line width and the like.
class NSGraphicsContext {
public:
    /// Null outside drawing. Borrowed until the drawing ends.
    static NSGraphicsContext* currentContext();

    /// Whether edges are antialiased. At first they aren't.
    bool shouldAntialias() const;
    void setShouldAntialias(bool antialias);

    /// The view's Core Graphics context. Its origin is the view's top left, y grows downward.
    CFRef<CGContext> graphicsPort() const;

    static void saveGraphicsState();
    /// Restores the state saved last.
    static void restoreGraphicsState();
};
