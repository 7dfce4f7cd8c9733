// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGContext.h"

#include "platform/QuickDraw/detail/GrafPort.h"

CGContext::CGContext(GrafPort& port)
    : port_(port), height_(static_cast<CGFloat>(port.size().height())) {
    painter().save();
}

CGContext::~CGContext() {
    painter().restore();
    port_.endDrawing();
}

QPainter& CGContext::painter() {
    return port_.painter();
}

QRectF CGContext::toPainter(const CGRect& rect) const {
    const auto& [origin, size] = rect;
    return {origin.x, height_ - double{origin.y} - size.height, size.width, size.height};
}

CFRef<CGContext> CreateCGContextForPort(GrafPtr port) {
    if (!port || !port->beginDrawing())
        return nullptr;
    return CFRef<CGContext>::adopt(new CGContext(*port));
}
