// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSGraphics.h"

#include "platform/QuickDraw/detail/Frame.h"
#include "platform/QuickDraw/detail/GrafPort.h"

void NSEraseRect(const NSRect& rect) {
    if (GrafPort* port = GrafPort::current())
        port->painter().fillRect(QRectF(rect.x, rect.y, rect.width, rect.height),
                                 port->widget().palette().base());
}

void NSRectFill(const NSRect& rect) {
    NSRectFillUsingOperation(rect, NSCompositeCopy);
}

void NSRectFillUsingOperation(const NSRect& rect, NSCompositingOperation operation) {
    GrafPort* port = GrafPort::current();
    if (!port || rect.width <= 0 || rect.height <= 0)
        return;
    QPainter& painter = port->painter();
    const QPainter::CompositionMode before = painter.compositionMode();
    painter.setCompositionMode(operation == NSCompositeCopy ? QPainter::CompositionMode_Source
                                                            : QPainter::CompositionMode_SourceOver);
    // Clipped to the widget, since the numbers may be too large for pixels.
    painter.fillRect(QRectF(rect.x, rect.y, rect.width, rect.height) & port->widget().rect(),
                     painter.brush());
    painter.setCompositionMode(before);
}

void NSFrameRectWithWidth(const NSRect& rect, float width) {
    if (GrafPort* port = GrafPort::current())
        fillFrame(port->painter(), QRectF(rect.x, rect.y, rect.width, rect.height), double{width},
                  port->painter().brush().color());
}

// The current port holds its state.
NSGraphicsContext* NSGraphicsContext::currentContext() {
    static NSGraphicsContext context;
    return GrafPort::current() ? &context : nullptr;
}

bool NSGraphicsContext::shouldAntialias() const {
    return GrafPort::current()->painter().testRenderHint(QPainter::Antialiasing);
}

void NSGraphicsContext::setShouldAntialias(bool antialias) {
    GrafPort::current()->painter().setRenderHint(QPainter::Antialiasing, antialias);
}

CFRef<CGContext> NSGraphicsContext::graphicsPort() const {
    auto context = CreateCGContextForPort(GrafPort::current());
    CGContextTranslateCTM(context.get(), 0, context->height());
    CGContextScaleCTM(context.get(), 1, -1);
    return context;
}

void NSGraphicsContext::saveGraphicsState() {
    if (GrafPort* port = GrafPort::current())
        port->painter().save();
}

void NSGraphicsContext::restoreGraphicsState() {
    if (GrafPort* port = GrafPort::current())
        port->painter().restore();
}
