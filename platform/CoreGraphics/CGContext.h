// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/QuickDraw/QuickDraw.h"

#include <cstddef>

class QPainter;
class QRectF;

/// Draws into a port in coordinates whose origin is at the bottom left; y grows upward. Use ends
/// with the port's. When the context goes, the port's painter has the state again that it had
/// before.
class CGContext final : public CFType {
public:
    /// The port's drawing has begun.
    explicit CGContext(GrafPort& port);

    GrafPort& port() { return port_; }

    QPainter& painter();

    /// The port's, in points.
    CGFloat height() const { return height_; }

    /// The rectangle in the painter's coordinates.
    QRectF toPainter(const CGRect& rect) const;

    CFTypeID typeID() const override { return CFTypeID::Context; }

private:
    ~CGContext() override;

    GrafPort& port_;
    CGFloat height_;
};

/// Null when there is no port, or it can't be drawn in at the moment.
CFRef<CGContext> CreateCGContextForPort(GrafPtr port);

/// Moves the context's origin along with the port's: what was x = 0 at the left edge is x = the
/// port's own x there, and the same for y at the bottom.
void SyncCGContextOriginWithPort(CGContext* context, GrafPtr port);

void CGContextTranslateCTM(CGContext* context, CGFloat x, CGFloat y);
void CGContextScaleCTM(CGContext* context, CGFloat x, CGFloat y);

/// Keeps the coordinates, the clip, the colours and the line join until they are restored.
void CGContextSaveGState(CGContext* context);
void CGContextRestoreGState(CGContext* context);

/// From now on only what lies in one of the rectangles is drawn, in whole points.
void CGContextClipToRects(CGContext* context, const CGRect rects[], std::size_t count);

enum CGLineJoin { kCGLineJoinMiter, kCGLineJoinRound };

void CGContextSetLineJoin(CGContext* context, CGLineJoin join);

/// Parts from 0 to 1.
void CGContextSetRGBFillColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha);
void CGContextSetRGBStrokeColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha);

/// Makes the rectangle transparent again.
void CGContextClearRect(CGContext* context, CGRect rect);
void CGContextFillRect(CGContext* context, CGRect rect);
/// Draws a line of `width` along the rectangle's edges, half of it on either side.
void CGContextStrokeRectWithWidth(CGContext* context, CGRect rect, CGFloat width);

/// What was drawn inside the clip is to be on the screen once the context is gone.
void CGContextFlush(CGContext* context);
