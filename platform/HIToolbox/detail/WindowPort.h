// SPDX-License-Identifier: MIT
#pragma once

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QImage>

/// The picture of a top-level widget that is drawn in at any time, also outside of its paint
/// events, straight into what is shown.
class WindowPort final : public GrafPort {
public:
    /// `widget` has no children with pictures of their own, and is opaque or translucent as a
    /// whole.
    explicit WindowPort(QWidget& widget) : GrafPort(widget), widget_(widget) {}

    /// What shows where nothing is drawn; null for what lies beneath.
    void setBackdrop(QImage backdrop) { backdrop_ = std::move(backdrop); }

    /// While a paint event is handled, drawing goes through its painter. Null when it is done.
    void setPaintEventPainter(QPainter* painter);

    /// The widget's units in a point.
    double unitsAPoint() const;

    QSize size() const override;
    bool beginDrawing() override;
    void endDrawing() override;
    void flush(const QRegion& region) override;
    void erase(const QRectF& rect) override;

private:
    QWidget& widget_;
    QImage backdrop_;
    QPainter ownPainter_; ///< active while drawing outside of a paint event
    QRegion flushed_;
};
