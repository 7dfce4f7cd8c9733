// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QColor;
class QPainter;

/// Draws a section's icon, made for this project, in one colour into a square. Names: scanning,
/// presses, look, palette, general. Any other draws nothing.
void drawSectionIcon(QPainter& painter, const QString& name, const QRectF& square,
                     const QColor& color);
