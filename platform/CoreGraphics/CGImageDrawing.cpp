// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGImage.h"

#include <QImage>
#include <QPainter>

namespace {

/// In pixels of the screen. No screen reaches further.
constexpr double kFarthest = 1 << 24;

bool isWholeMultiple(const QSize& size, const QSize& of) {
    return size.width() % of.width() == 0 && size.height() % of.height() == 0;
}

} // namespace

void CGContextDrawImage(CGContext* context, CGRect rect, const CGImage* image) {
    QPainter& painter = context->painter();
    const QTransform toDevice = painter.deviceTransform();
    const QRectF area = toDevice.mapRect(context->toPainter(rect));
    if (!QRectF(-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest).contains(area))
        return;
    const QSize size = area.size().toSize();
    const QRect place(area.topLeft().toPoint(), size);
    painter.save();
    painter.setWorldTransform(toDevice.inverted() * painter.worldTransform()); // to device pixels
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          !isWholeMultiple(size, image->image().size()));
    painter.drawImage(place, toDevice.m22() < 0 ? image->image().mirrored() : image->image());
    painter.restore();
}
