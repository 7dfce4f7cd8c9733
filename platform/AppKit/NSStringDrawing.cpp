// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSStringDrawing.h"

#include "platform/QuickDraw/detail/GrafPort.h"

namespace {

QFont fontOf(const GrafPort& port, const TextAttributes& attributes) {
    QFont font = port.widget().font();
    if (attributes.font.pointSize() > 0)
        font.setPointSizeF(attributes.font.pointSize());
    return font;
}

QFontMetricsF metricsOf(GrafPort& port, const TextAttributes& attributes) {
    return QFontMetricsF(fontOf(port, attributes), port.painter().device());
}

} // namespace

NSSize sizeWithAttributes(const CFString* text, const TextAttributes& attributes) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return {};
    const QFontMetricsF metrics = metricsOf(*port, attributes);
    const double width = metrics.horizontalAdvance(QString::fromStdU16String(text->text()));
    return {static_cast<float>(width), static_cast<float>(metrics.height())};
}

void drawAtPoint(const CFString* text, NSPoint point, const TextAttributes& attributes) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return;
    QPainter& painter = port->painter();
    painter.save();
    painter.setFont(fontOf(*port, attributes));
    painter.setPen(Qt::black);
    painter.drawText(QPointF(point.x, point.y + metricsOf(*port, attributes).ascent()),
                     QString::fromStdU16String(text->text()));
    painter.restore();
}

void NSDrawString(const CFString* text, const NSRect& rect, const TextAttributes& attributes) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return;
    QPainter& painter = port->painter();
    painter.save();
    painter.setFont(fontOf(*port, attributes));
    painter.setPen(port->widget().palette().color(QPalette::Text));
    const QRectF place(rect.x, rect.y, rect.width, rect.height);
    const QString line = painter.fontMetrics().elidedText(
        QString::fromStdU16String(text->text()), Qt::ElideMiddle, static_cast<int>(place.width()));
    painter.drawText(
        place, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine, line);
    painter.restore();
}
