#pragma once

/// A place in a window or view, in points; y grows downward.
struct NSPoint {
    float x = 0;
    float y = 0;
};

/// A rectangle of an interface, in points; y grows downward.
struct NSRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// The right and the lower edge are outside.
inline bool NSPointInRect(NSPoint point, const NSRect& rect) {
    return point.x >= rect.x && point.x < rect.x + rect.width && point.y >= rect.y &&
           point.y < rect.y + rect.height;
}
