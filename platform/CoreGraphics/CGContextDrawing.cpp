// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGContext.h"

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QPainterPath>

namespace {

/// Where a rectangle of the context lies in the port's widget.
QRectF toWidget(const CGContext& context, const QTransform& transform, const CGRect& rect) {
    return transform.mapRect(context.toPainter(rect).normalized());
}

QColor toColor(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
    return QColor::fromRgbF(red, green, blue, alpha);
}

} // namespace

void SyncCGContextOriginWithPort(CGContext* context, GrafPtr port) {
    CGContextTranslateCTM(context, static_cast<CGFloat>(-port->origin.x()),
                          static_cast<CGFloat>(port->origin.y()));
}

// The painter's y grows downward and the context's upward, so y changes its sign.
void CGContextTranslateCTM(CGContext* context, CGFloat x, CGFloat y) {
    context->painter().translate(x, -y);
}

void CGContextScaleCTM(CGContext* context, CGFloat x, CGFloat y) {
    context->painter().translate(0, context->height() * (1 - y));
    context->painter().scale(x, y);
}

void CGContextSaveGState(CGContext* context) {
    context->painter().save();
}

void CGContextRestoreGState(CGContext* context) {
    context->painter().restore();
}

void CGContextClipToRects(CGContext* context, const CGRect rects[], std::size_t count) {
    QPainter& painter = context->painter();
    const QTransform transform = painter.transform();
    QRegion region;
    for (std::size_t i = 0; i < count; ++i)
        region += toWidget(*context, transform, rects[i]).toAlignedRect();
    painter.resetTransform();
    painter.setClipRegion(region, Qt::IntersectClip);
    painter.setTransform(transform);
}

void CGContextSetLineJoin(CGContext* context, CGLineJoin join) {
    QPen pen = context->painter().pen();
    pen.setJoinStyle(join == kCGLineJoinRound ? Qt::RoundJoin : Qt::MiterJoin);
    context->painter().setPen(pen);
}

void CGContextSetRGBFillColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha) {
    context->painter().setBrush(toColor(red, green, blue, alpha));
}

void CGContextSetRGBStrokeColor(CGContext* context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha) {
    QPen pen = context->painter().pen();
    pen.setColor(toColor(red, green, blue, alpha));
    context->painter().setPen(pen);
}

void CGContextClearRect(CGContext* context, CGRect rect) {
    context->port().erase(toWidget(*context, context->painter().transform(), rect));
}

void CGContextFillRect(CGContext* context, CGRect rect) {
    QPainter& painter = context->painter();
    painter.fillRect(context->toPainter(rect).normalized(), painter.brush());
}

// Filled, each side by itself. With a clip of several parts Qt takes ten times as long to stroke
// it.
void CGContextStrokeRectWithWidth(CGContext* context, CGRect rect, CGFloat width) {
    QPainter& painter = context->painter();
    const QPen pen = painter.pen();
    const QRectF middle = context->toPainter(rect).normalized();
    const double half = double{width} / 2;
    const QRectF outer = middle.adjusted(-half, -half, half, half);
    const QRectF inner = middle.adjusted(half, half, -half, -half);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (inner.isEmpty()) {
        painter.fillRect(outer, pen.color());
    } else if (pen.joinStyle() == Qt::RoundJoin) {
        QPainterPath line;
        line.addRoundedRect(outer, half, half);
        line.addRect(inner);
        painter.fillPath(line, pen.color());
    } else {
        for (const QRectF& side : {QRectF(outer.left(), outer.top(), outer.width(), width),
                                   QRectF(outer.left(), inner.bottom(), outer.width(), width),
                                   QRectF(outer.left(), inner.top(), width, inner.height()),
                                   QRectF(inner.right(), inner.top(), width, inner.height())})
            painter.fillRect(side, pen.color());
    }
    painter.restore();
}

void CGContextFlush(CGContext* context) {
    QPainter& painter = context->painter();
    painter.save();
    painter.resetTransform();
    context->port().flush(painter.hasClipping() ? painter.clipRegion()
                                                : context->port().widget().rect());
    painter.restore();
}
