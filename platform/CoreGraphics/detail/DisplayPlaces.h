// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QRectF>

class QScreen;

// Places of displays and windows, in three kinds of coordinates:
// - pixels of the desktop: those of the X server, over all displays;
// - Qt's units: a display's corner is in pixels; inside the display a unit has the display's scale;
// - points: units of the main display's scale, from its top-left corner, over all displays.

/// A display as Qt describes it.
struct DisplayPlace {
    explicit DisplayPlace(const QScreen& screen);

    DisplayPlace(QRect units, double pixelsAUnit) : geometry(units), scale(pixelsAUnit) {}

    QRect geometry; ///< in Qt's units
    double scale;   ///< pixels a unit
};

QRectF toPoints(const DisplayPlace& display, const DisplayPlace& main);

/// To Qt's units. `counted` is the display that Qt takes the window to be on.
QRect toQtUnits(const QRectF& points, const DisplayPlace& main, const DisplayPlace& counted);
