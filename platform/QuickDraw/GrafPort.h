#pragma once

#include "platform/QuickDraw/QuickDraw.h"

#include <QPainter>
#include <QRect>
#include <QWidget>

/// A widget's picture, while the painter is active on it. It is the current port from its making to
/// its end, when the one before it becomes current again.
class GrafPort {
public:
    /// Neither is owned. The painter's coordinates are the widget's own.
    GrafPort(QPainter& painter, const QWidget& widget);
    ~GrafPort();
    GrafPort(const GrafPort&) = delete;
    GrafPort& operator=(const GrafPort&) = delete;

    /// Null when there is none.
    static GrafPort* current();
    static void setCurrent(GrafPort* port);

    QColor background = Qt::white;

    QPainter& painter() { return painter_; }

    /// Whose style, palette and fonts the theme takes.
    const QWidget& widget() const { return widget_; }

private:
    QPainter& painter_;
    const QWidget& widget_;
    GrafPort* previous_;
};

inline QRect toQRect(const Rect& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

/// Edges that 16 bits can't hold become the nearest that they can.
Rect toRect(const QRect& rect);
