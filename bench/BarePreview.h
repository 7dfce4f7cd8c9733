// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QWidget;

constexpr char kBenchAgent[] = KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app";
constexpr QSize kPreviewSize(414, 140); ///< as the form shows it at first

/// Draws the preview's shapes straight through Qt, its pointer decoded each time.
void drawBarePreview(QWidget& widget, QPainter& painter);
