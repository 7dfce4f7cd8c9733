#pragma once

#include "platform/CoreFoundation/CFBase.h"

/// A place in a port, in points from its top-left corner; v grows downward.
struct Point {
    SInt16 v = 0;
    SInt16 h = 0;
};

/// A rectangle between its edges, in points; bottom and right lie just outside.
struct Rect {
    SInt16 top = 0;
    SInt16 left = 0;
    SInt16 bottom = 0;
    SInt16 right = 0;

    bool operator==(const Rect&) const = default;
};

/// What QuickDraw draws into: the picture of one view while that view is being drawn.
class GrafPort;
using GrafPtr = GrafPort*;

/// The current port; null when no view is being drawn. Borrowed, until the drawing ends.
void GetPort(GrafPtr* port);

/// The whole view, with its top-left corner at 0, 0. Gives `bounds` back.
Rect* GetPortBounds(GrafPtr port, Rect* bounds);
