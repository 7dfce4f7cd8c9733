// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QWidget;

constexpr char kBenchAgent[] = KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app";
constexpr QSize kPreviewSize(414, 140); ///< its first size in the form

/// Draws the preview's shapes directly with Qt. Decodes the pointer each time.
void drawBarePreview(QWidget& widget, QPainter& painter);
