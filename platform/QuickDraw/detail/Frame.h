// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Fills the inner edge of a rectangle, `width` points wide. All of it lies on whole pixels of the
/// screen, one at least, so that the four sides look the same at any scale.
void fillFrame(QPainter& painter, const QRectF& rect, double width, const QColor& color);
