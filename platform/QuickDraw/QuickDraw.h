// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <memory>

class QRegion;

/// A place in a port, in points from its top-left corner; v grows downward.
struct Point {
    SInt16 v = 0;
    SInt16 h = 0;
};

/// A rectangle in points. Bottom and right lie just outside.
struct Rect {
    SInt16 top = 0;
    SInt16 left = 0;
    SInt16 bottom = 0;
    SInt16 right = 0;

    bool operator==(const Rect&) const = default;
};

/// What QuickDraw draws into: a view while it is being drawn, or a window.
class GrafPort;
using GrafPtr = GrafPort*;

/// The current port. Null when there is none. Borrowed: a view's until its drawing ends, a window's
/// until the window goes.
void GetPort(GrafPtr* port);

/// Makes the port current; null for none.
void SetPort(GrafPtr port);

/// Sets the coordinates of the current port's top-left corner, for GetPortBounds and
/// SyncCGContextOriginWithPort.
void SetOrigin(SInt16 h, SInt16 v);

/// Bounds of the whole view or window. Returns `bounds`.
Rect* GetPortBounds(GrafPtr port, Rect* bounds);

// The following act on the current port. Without one they do nothing.

struct RgnDisposer {
    void operator()(QRegion* region) const;
};

/// A set of points in a port. The handle owns it.
using RgnHandle = std::unique_ptr<QRegion, RgnDisposer>;

/// An empty region.
RgnHandle NewRgn();

/// Makes `region` the clip: the part of the port that is drawn in. At first it is all of it.
void GetClip(const RgnHandle& region);
void SetClip(const RgnHandle& region);
void ClipRect(const Rect* rect);

/// Fills with the port's background: white, or what SetThemeBackground has set.
void EraseRect(const Rect* rect);

/// Black, one point wide.
void PenNormal();
/// Draws along the inside of the rectangle's edges with the pen's colour, one point wide.
void FrameRect(const Rect* rect);

/// Moves the rectangle. Edges are limited to what 16 bits hold.
void OffsetRect(Rect* rect, SInt16 dh, SInt16 dv);
