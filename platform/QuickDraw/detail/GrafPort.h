// SPDX-License-Identifier: MIT
#pragma once

#include "platform/QuickDraw/QuickDraw.h"

#include <QPainter>
#include <QRect>
#include <QWidget>

/// A widget's picture, in the widget's own coordinates.
class GrafPort {
public:
    /// A view's port, while the painter is active on it. It is the current port from its making to
    /// its end, when the one before it becomes current again. Neither is owned.
    GrafPort(QPainter& painter, const QWidget& widget);
    virtual ~GrafPort();
    GrafPort(const GrafPort&) = delete;
    GrafPort& operator=(const GrafPort&) = delete;

    /// Null when there is none.
    static GrafPort* current();
    static void setCurrent(GrafPort* port);

    /// Whose style, palette and fonts the theme takes.
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

    /// What was drawn inside the region, in the widget's coordinates, is to be on the screen once
    /// the drawing has ended. A view's always is.
    virtual void flush(const QRegion&) {}

    /// Takes away what was drawn in the rectangle, in the widget's coordinates.
    virtual void erase(const QRectF& rect);

protected:
    /// A port that is there without a painter, and not current.
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

/// Edges that 16 bits can't hold become the nearest that they can.
Rect toRect(const QRect& rect);
