// SPDX-License-Identifier: MIT
#pragma once

#include "platform/QuickDraw/QuickDraw.h"

#include <QPainter>
#include <QRect>
#include <QWidget>

/// A widget's picture, in the widget's own coordinates.
class GrafPort {
public:
    /// A view's port while the painter is active on it. It is the current port until it is
    /// destroyed; then the one before it is current again. Owns neither argument.
    GrafPort(QPainter& painter, const QWidget& widget);
    virtual ~GrafPort();
    GrafPort(const GrafPort&) = delete;
    GrafPort& operator=(const GrafPort&) = delete;

    /// Null when there is none.
    static GrafPort* current();
    static void setCurrent(GrafPort* port);

    /// The theme takes style, palette and fonts from it.
    const QWidget& widget() const { return widget_; }

    QColor background = Qt::white;
    QPoint origin = {}; ///< the coordinates of the top-left corner

    /// In points.
    virtual QSize size() const { return widget_.size(); }

    /// Only between beginDrawing and endDrawing.
    QPainter& painter() { return *painter_; }

    /// False when there is nothing to draw on at the moment.
    virtual bool beginDrawing();

    virtual void endDrawing() {}

    /// Once the drawing has ended, what was drawn inside the region is on the screen. The region is
    /// in the widget's coordinates. A view needs no flush.
    virtual void flush(const QRegion&) {}

    /// Removes what was drawn in the rectangle, which is in the widget's coordinates.
    virtual void erase(const QRectF& rect);

protected:
    /// A port without a painter. It isn't current.
    explicit GrafPort(const QWidget& widget);

    void setPainter(QPainter* painter) { painter_ = painter; }

private:
    QPainter* painter_ = nullptr;
    const QWidget& widget_;
    GrafPort* previous_ = nullptr;
};

inline QRect toQRect(const Rect& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

/// Edges are limited to what 16 bits hold.
Rect toRect(const QRect& rect);
