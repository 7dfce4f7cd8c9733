// SPDX-License-Identifier: MIT
#include "agent/session/PointerPicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// As large as the pointers of the agent's bundle. The tip lies in the corner.
QImage plainArrow(double scale) {
    QImage image(QSize(20, 30) * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF(
        {{0.5, 0.5}, {0.5, 24}, {6, 18.5}, {9.5, 27}, {13.5, 25.5}, {10, 17}, {17.5, 17}}));
    return image;
}

} // namespace

PointerPicture pointerPicture(const PointerImage& pointer, double scale) {
    if (!pointer.image)
        return {plainArrow(scale), {0, 0}};
    QImage image = pointer.image->image().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QSize size = (QSizeF(image.size()) * scale).toSize().expandedTo({1, 1});
    if (size != image.size())
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return {image, (QPointF(pointer.hotSpot.x, pointer.hotSpot.y) * scale).toPoint()};
}

QImage opaque(const QImage& image) {
    QImage made = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < made.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(made.scanLine(y));
        std::transform(row, row + made.width(), row, [](QRgb color) { return color | 0xff000000; });
    }
    return made;
}

std::vector<QRect> opaqueParts(const QImage& image) {
    std::vector<QRect> parts;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto* end = row + image.width();
        const auto isOpaque = [](QRgb color) { return qAlpha(color) > 127; };
        for (const auto* from = std::find_if(row, end, isOpaque); from != end;) {
            const auto* to = std::find_if_not(from, end, isOpaque);
            parts.emplace_back(static_cast<int>(from - row), y, static_cast<int>(to - from), 1);
            from = std::find_if(to, end, isOpaque);
        }
    }
    return parts;
}
