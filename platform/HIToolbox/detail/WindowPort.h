// SPDX-License-Identifier: MIT
#pragma once

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QImage>

/// The picture of a top-level widget. It can be drawn in at any time, even outside paint events;
/// the result shows directly.
class WindowPort final : public GrafPort {
public:
    /// `widget` must have no children with pictures of their own. As a whole it is either opaque or
    /// translucent.
    explicit WindowPort(QWidget& widget) : GrafPort(widget), widget_(widget) {}

    /// Shown where nothing is drawn. Null: what lies beneath is shown.
    void setBackdrop(QImage backdrop) { backdrop_ = std::move(backdrop); }

    /// During a paint event drawing uses its painter. Null afterwards.
    void setPaintEventPainter(QPainter* painter);

    /// The widget's units per point.
    double unitsAPoint() const;

    QSize size() const override;
    bool beginDrawing() override;
    void endDrawing() override;
    void flush(const QRegion& region) override;
    void erase(const QRectF& rect) override;

private:
    QWidget& widget_;
    QImage backdrop_;
    QPainter ownPainter_; ///< active while drawing outside a paint event
    QRegion flushed_;
};
