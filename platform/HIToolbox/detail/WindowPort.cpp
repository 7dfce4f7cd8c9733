// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/WindowPort.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QScreen>

void WindowPort::setPaintEventPainter(QPainter* painter) {
    setPainter(painter);
    if (painter)
        painter->scale(unitsAPoint(), unitsAPoint());
}

// Usually 1. Another number only when Qt takes the window to be on a display of another scale than
// the main one.
double WindowPort::unitsAPoint() const {
    return QGuiApplication::primaryScreen()->devicePixelRatio() / widget_.devicePixelRatioF();
}

QSize WindowPort::size() const {
    return (QSizeF(widget_.size()) / unitsAPoint()).toSize();
}

bool WindowPort::beginDrawing() {
    if (GrafPort::beginDrawing())
        return true;
    QBackingStore* store = widget_.backingStore();
    if (!widget_.isVisible() || !store || store->size() != widget_.size())
        return false;
    store->beginPaint({}); // keeps the whole picture
    ownPainter_.begin(store->paintDevice());
    ownPainter_.scale(unitsAPoint(), unitsAPoint());
    setPainter(&ownPainter_);
    return true;
}

void WindowPort::endDrawing() {
    if (!ownPainter_.isActive())
        return;
    ownPainter_.end();
    setPainter(nullptr);
    widget_.backingStore()->endPaint();
    if (!flushed_.isEmpty())
        widget_.backingStore()->flush(std::exchange(flushed_, {}));
}

void WindowPort::flush(const QRegion& region) {
    if (ownPainter_.isActive())
        flushed_ += region;
}

void WindowPort::erase(const QRectF& rect) {
    if (backdrop_.isNull())
        return GrafPort::erase(rect);
    const double ratio = backdrop_.devicePixelRatio();
    painter().save();
    painter().resetTransform();
    painter().setCompositionMode(QPainter::CompositionMode_Source);
    painter().drawImage(rect, backdrop_, {rect.topLeft() * ratio, rect.size() * ratio});
    painter().restore();
}
