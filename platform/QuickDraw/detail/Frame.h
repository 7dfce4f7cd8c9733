// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Fills the inner edge of a rectangle, `width` points wide. It lies on whole pixels of the screen
/// and is at least one wide. So all four sides look the same at any scale.
void fillFrame(QPainter& painter, const QRectF& rect, double width, const QColor& color);
