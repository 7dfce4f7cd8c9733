// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <QScreen>

DisplayPlace::DisplayPlace(const QScreen& screen)
    : DisplayPlace(screen.geometry(), screen.devicePixelRatio()) {}

QRectF toPoints(const DisplayPlace& display, const DisplayPlace& main) {
    const QPointF pixel = display.geometry.topLeft() - main.geometry.topLeft();
    const QSizeF pixels = QSizeF(display.geometry.size()) * display.scale;
    return {pixel / main.scale, pixels / main.scale};
}

QRect toQtUnits(const QRectF& points, const DisplayPlace& main, const DisplayPlace& counted) {
    const QPointF start = counted.geometry.topLeft();
    const QPointF pixel = points.topLeft() * main.scale + main.geometry.topLeft();
    return QRectF((pixel - start) / counted.scale + start,
                  points.size() * main.scale / counted.scale)
        .toRect();
}
