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

/// A rectangle between its edges, in points; bottom and right lie just outside.
struct Rect {
    SInt16 top = 0;
    SInt16 left = 0;
    SInt16 bottom = 0;
    SInt16 right = 0;

    bool operator==(const Rect&) const = default;
};

/// What QuickDraw draws into: the picture of a view while that view is being drawn, or of a window.
class GrafPort;
using GrafPtr = GrafPort*;

/// The current port; null when there is none. Borrowed: a view's until its drawing ends, a window's
/// until the window goes.
void GetPort(GrafPtr* port);

/// Makes the port current; null for none.
void SetPort(GrafPtr port);

/// Gives the top-left corner of the current port these coordinates instead of 0, 0, for
/// GetPortBounds and SyncCGContextOriginWithPort.
void SetOrigin(SInt16 h, SInt16 v);

/// The whole view or window. Gives `bounds` back.
Rect* GetPortBounds(GrafPtr port, Rect* bounds);

// What follows acts on the current port, and does nothing without one.

struct RgnDisposer {
    void operator()(QRegion* region) const;
};

/// Any set of points of a port. Who holds the handle owns the region.
using RgnHandle = std::unique_ptr<QRegion, RgnDisposer>;

/// An empty region.
RgnHandle NewRgn();

/// Makes `region` the clip, the part of the port that is drawn in; at first that is all of it.
void GetClip(const RgnHandle& region);
void SetClip(const RgnHandle& region);
void ClipRect(const Rect* rect);

/// Fills with the port's background: white, or what SetThemeBackground has set.
void EraseRect(const Rect* rect);

/// Black, one point wide.
void PenNormal();
/// Draws along the inside of the rectangle's edges with the pen's colour, one point wide.
void FrameRect(const Rect* rect);

/// Moves the rectangle; an edge that 16 bits can't hold becomes the nearest that they can.
void OffsetRect(Rect* rect, SInt16 dh, SInt16 dv);
