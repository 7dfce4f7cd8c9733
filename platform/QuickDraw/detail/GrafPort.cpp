// SPDX-License-Identifier: MIT
#include "platform/QuickDraw/detail/GrafPort.h"

#include <algorithm>
#include <limits>

namespace {

GrafPort* currentPort = nullptr;

SInt16 toEdge(int edge) {
    using Limits = std::numeric_limits<SInt16>;
    return static_cast<SInt16>(std::clamp<int>(edge, Limits::min(), Limits::max()));
}

} // namespace

GrafPort::GrafPort(QPainter& painter, const QWidget& widget)
    : painter_(&painter), widget_(widget), previous_(currentPort) {
    currentPort = this;
}

GrafPort::GrafPort(const QWidget& widget) : widget_(widget) {}

GrafPort::~GrafPort() {
    if (currentPort == this)
        currentPort = previous_;
}

GrafPort* GrafPort::current() {
    return currentPort;
}

void GrafPort::setCurrent(GrafPort* port) {
    currentPort = port;
}

bool GrafPort::beginDrawing() {
    return painter_ && painter_->isActive();
}

void GrafPort::erase(const QRectF& rect) {
    painter_->save();
    painter_->resetTransform();
    painter_->setCompositionMode(QPainter::CompositionMode_Source);
    painter_->fillRect(rect, Qt::transparent);
    painter_->restore();
}

Rect toRect(const QRect& rect) {
    return {toEdge(rect.y()), toEdge(rect.x()), toEdge(rect.y() + rect.height()),
            toEdge(rect.x() + rect.width())};
}

void GetPort(GrafPtr* port) {
    *port = GrafPort::current();
}

void SetPort(GrafPtr port) {
    GrafPort::setCurrent(port);
}

void SetOrigin(SInt16 h, SInt16 v) {
    if (GrafPort* port = GrafPort::current())
        port->origin = {h, v};
}

Rect* GetPortBounds(GrafPtr port, Rect* bounds) {
    *bounds = toRect({port->origin, port->size()});
    return bounds;
}
