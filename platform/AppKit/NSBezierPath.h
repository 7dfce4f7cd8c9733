// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"

/// Draws lines in the current colour; see NSGraphics.h.
class NSBezierPath {
public:
    /// In points, until the graphics state is restored.
    static void setDefaultLineWidth(float width);
    /// Half of the line lies on each side of the rectangle's edges.
    static void strokeRect(const NSRect& rect);
};
