// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SectionIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr qreal kGrid = 24; // the side of the square that the shapes are drawn for
constexpr qreal kStroke = 2;

// A line that crosses the screen, and one that crosses it.
QPainterPath scanning() {
    QPainterPath path;
    path.addRoundedRect(3, 5, 18, 14, 2, 2);
    path.moveTo(3, 13);
    path.lineTo(21, 13);
    path.moveTo(14, 9);
    path.lineTo(14, 17);
    return path;
}

// A round switch that is pressed from above.
QPainterPath presses() {
    QPainterPath path;
    path.addEllipse(QPointF(12, 15), 6, 6);
    path.moveTo(12, 2);
    path.lineTo(12, 11);
    path.moveTo(9, 8);
    path.lineTo(12, 11);
    path.lineTo(15, 8);
    return path;
}

// Half dark, half light.
QPainterPath look() {
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 9, 9);
    return path;
}

QPainterPath palette() {
    QPainterPath path;
    path.addRoundedRect(3, 7, 7.5, 10, 2, 2);
    path.addRoundedRect(13.5, 7, 7.5, 10, 2, 2);
    return path;
}

// Two controls that slide.
QPainterPath general() {
    QPainterPath path;
    path.moveTo(3, 8);
    path.lineTo(12, 8);
    path.addEllipse(QPointF(15, 8), 3, 3);
    path.moveTo(18, 8);
    path.lineTo(21, 8);
    path.moveTo(3, 16);
    path.lineTo(6, 16);
    path.addEllipse(QPointF(9, 16), 3, 3);
    path.moveTo(12, 16);
    path.lineTo(21, 16);
    return path;
}

} // namespace

void drawSectionIcon(QPainter& painter, const QString& name, const QRectF& square,
                     const QColor& color) {
    static const struct {
        const char* name;
        QPainterPath (*shape)();
    } kShapes[] = {{"scanning", scanning},
                   {"presses", presses},
                   {"look", look},
                   {"palette", palette},
                   {"general", general}};

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / kGrid, square.height() / kGrid);
    painter.setPen(QPen(color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    for (const auto& [each, shape] : kShapes)
        if (name == QLatin1String(each))
            painter.drawPath(shape());
    if (name == QLatin1String("look")) {
        painter.setBrush(color);
        painter.drawChord(QRectF(3, 3, 18, 18), 90 * 16, 180 * 16);
    }
    painter.restore();
}
