// SPDX-License-Identifier: MIT
#pragma once

#include "src/files/ptrutil.h"

#include <QImage>

#include <vector>

/// A pointer as it is drawn.
struct PointerPicture {
    QImage image;   ///< premultiplied alpha
    QPoint hotSpot; ///< in its pixels
};

/// In `scale` times its size, or a plain arrow if it has no image.
PointerPicture pointerPicture(const PointerImage& pointer, double scale);

/// The same without transparency, for the parts of it below.
QImage opaque(const QImage& image);

/// What of the image is more than half opaque, as rectangles of one row each.
std::vector<QRect> opaqueParts(const QImage& image);
