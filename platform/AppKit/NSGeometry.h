// SPDX-License-Identifier: MIT
#pragma once

/// A place in a window or view, in points; y grows downward.
struct NSPoint {
    float x = 0;
    float y = 0;
};

struct NSSize {
    float width = 0;
    float height = 0;
};

/// A rectangle in points; y grows downward.
struct NSRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// The right and lower edges are outside.
inline bool NSPointInRect(NSPoint point, const NSRect& rect) {
    return point.x >= rect.x && point.x < rect.x + rect.width && point.y >= rect.y &&
           point.y < rect.y + rect.height;
}

/// The rectangle with its sides moved inward, left and right by `dx`, top and bottom by `dy`.
inline NSRect NSInsetRect(const NSRect& rect, float dx, float dy) {
    return {rect.x + dx, rect.y + dy, rect.width - 2 * dx, rect.height - 2 * dy};
}
