// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSBezierPath.h"

#include "platform/QuickDraw/detail/GrafPort.h"

void NSBezierPath::setDefaultLineWidth(float width) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return;
    QPen pen = port->painter().pen();
    pen.setWidthF(width);
    port->painter().setPen(pen);
}

void NSBezierPath::strokeRect(const NSRect& rect) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return;
    QPainter& painter = port->painter();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    QPen pen = painter.pen();
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawRect(QRectF(rect.x, rect.y, rect.width, rect.height));
    painter.restore();
}
