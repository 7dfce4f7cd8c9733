#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/QuickDraw/QuickDraw.h"

class QPainter;
class QRectF;

/// Draws into a port in coordinates whose origin is at the bottom left; y grows upward. Use ends
/// with the port's. When the context goes, the port's painter has the state again that it had
/// before.
class CGContext final : public CFType {
public:
    /// `height` is the port's, in points.
    CGContext(QPainter& painter, int height);

    QPainter& painter() { return painter_; }

    /// The port's, in points.
    CGFloat height() const { return static_cast<CGFloat>(height_); }

    /// The rectangle in the painter's coordinates.
    QRectF toPainter(const CGRect& rect) const;

    CFTypeID typeID() const override { return CFTypeID::Context; }

private:
    ~CGContext() override;

    QPainter& painter_;
    int height_;
};

/// Null when there is no port, or its painter isn't active.
CFRef<CGContext> CreateCGContextForPort(GrafPtr port);

void CGContextTranslateCTM(CGContext* context, CGFloat x, CGFloat y);
void CGContextScaleCTM(CGContext* context, CGFloat x, CGFloat y);

/// Keeps the coordinates until they are restored.
void CGContextSaveGState(CGContext* context);
void CGContextRestoreGState(CGContext* context);
