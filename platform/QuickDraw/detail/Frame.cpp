// SPDX-License-Identifier: MIT
#include "platform/QuickDraw/detail/Frame.h"

#include <algorithm>
#include <cmath>

void fillFrame(QPainter& painter, const QRectF& rect, double width, const QColor& color) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF outer = toDevice.mapRect(rect);
    const double left = std::round(outer.left()), right = std::round(outer.right());
    const double top = std::round(outer.top()), bottom = std::round(outer.bottom());
    const double side = std::max(1.0, std::round(width * std::abs(toDevice.m22())));
    const QRectF sides[] = {
        {left, top, right - left, side},
        {left, bottom - side, right - left, side},
        {left, top, side, bottom - top},
        {right - side, top, side, bottom - top},
    };

    const QTransform fromDevice = toDevice.inverted();
    for (const QRectF& each : sides)
        painter.fillRect(fromDevice.mapRect(each), color);
}
