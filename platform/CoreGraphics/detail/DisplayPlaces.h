#pragma once

#include <QRect>
#include <QRectF>

class QScreen;

// Where displays and windows lie, in three spaces. The desktop's pixels: as the X server counts
// them, one space for all displays. Qt's units: a display begins at its pixel on the desktop and is
// then counted in units of its own scale. Points: those of the main display, from its top-left
// corner, over the whole desktop.

/// A display as Qt tells it.
struct DisplayPlace {
    explicit DisplayPlace(const QScreen& screen);

    DisplayPlace(QRect units, double pixelsAUnit) : geometry(units), scale(pixelsAUnit) {}

    QRect geometry; ///< in Qt's units
    double scale;   ///< pixels a unit
};

QRectF toPoints(const DisplayPlace& display, const DisplayPlace& main);

/// Qt's units, for a window that Qt counts to the display `counted`.
QRect toQtUnits(const QRectF& points, const DisplayPlace& main, const DisplayPlace& counted);
