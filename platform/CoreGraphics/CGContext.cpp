#include "platform/CoreGraphics/CGContext.h"

#include "platform/QuickDraw/GrafPort.h"

CGContext::CGContext(QPainter& painter, int height) : painter_(painter), height_(height) {
    painter_.save();
}

CGContext::~CGContext() {
    painter_.restore();
}

QRectF CGContext::toPainter(const CGRect& rect) const {
    const auto& [origin, size] = rect;
    return {origin.x, height_ - double{origin.y} - size.height, size.width, size.height};
}

CFRef<CGContext> CreateCGContextForPort(GrafPtr port) {
    if (!port || !port->painter().isActive())
        return nullptr;
    Rect bounds;
    GetPortBounds(port, &bounds);
    return CFRef<CGContext>::adopt(new CGContext(port->painter(), bounds.bottom - bounds.top));
}
