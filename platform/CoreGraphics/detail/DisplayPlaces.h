// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QRectF>

class QScreen;

// Where displays and windows lie, in three kinds of coordinates:
// - pixels of the desktop, as the X server counts them, over all displays;
// - Qt's units: a display's corner in pixels, and within the display units of its own scale;
// - points: units of the main display's scale from its top-left corner, over all displays.

/// A display as Qt tells it.
struct DisplayPlace {
    explicit DisplayPlace(const QScreen& screen);

    DisplayPlace(QRect units, double pixelsAUnit) : geometry(units), scale(pixelsAUnit) {}

    QRect geometry; ///< in Qt's units
    double scale;   ///< pixels a unit
};

QRectF toPoints(const DisplayPlace& display, const DisplayPlace& main);

/// In Qt's units. `counted` is the display that Qt takes the window to be on.
QRect toQtUnits(const QRectF& points, const DisplayPlace& main, const DisplayPlace& counted);
