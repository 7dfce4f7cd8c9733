// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/QuickDraw/QuickDraw.h"

#include <cstddef>

class QPainter;
class QRectF;

/// Draws into a port. The origin is at the bottom left; y grows upward. Don't use it when the
/// port's drawing has ended. When the context goes, the port's painter gets its earlier state back.
class CGContext final : public CFType {
public:
    /// The port's drawing must have begun.
    explicit CGContext(GrafPort& port);

    GrafPort& port() { return port_; }

    QPainter& painter();

    /// Of the port, in points.
    CGFloat height() const { return height_; }

    /// The rectangle in the painter's coordinates.
    QRectF toPainter(const CGRect& rect) const;

    CFTypeID typeID() const override { return CFTypeID::Context; }

private:
    ~CGContext() override;

    GrafPort& port_;
    CGFloat height_;
};

/// Null without a port, or when it can't be drawn in at the moment.
CFRef<CGContext> CreateCGContextForPort(GrafPtr port);

/// Moves the context's origin to that of the port: the left edge is at the port's x, the bottom
/// edge at its y.
void SyncCGContextOriginWithPort(CGContext* context, GrafPtr port);

void CGContextTranslateCTM(CGContext* context, CGFloat x, CGFloat y);
void CGContextScaleCTM(CGContext* context, CGFloat x, CGFloat y);

/// Saves the coordinates, the clip, the colours and the line join until they are restored.
void CGContextSaveGState(CGContext* context);
void CGContextRestoreGState(CGContext* context);

/// Restricts drawing to the rectangles, in whole points.
void CGContextClipToRects(CGContext* context, const CGRect rects[], std::size_t count);

enum CGLineJoin { kCGLineJoinMiter, kCGLineJoinRound };

void CGContextSetLineJoin(CGContext* context, CGLineJoin join);

/// Each part is from 0 to 1.
void CGContextSetRGBFillColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha);
void CGContextSetRGBStrokeColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha);

/// Makes the rectangle transparent.
void CGContextClearRect(CGContext* context, CGRect rect);
void CGContextFillRect(CGContext* context, CGRect rect);
/// Draws a line of `width` along the rectangle's edges, half of it on either side.
void CGContextStrokeRectWithWidth(CGContext* context, CGRect rect, CGFloat width);

/// Once the context is gone, what was drawn inside the clip is on the screen.
void CGContextFlush(CGContext* context);
