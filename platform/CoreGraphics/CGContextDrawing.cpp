#include "platform/CoreGraphics/CGContext.h"

#include <QPainter>

// The painter's coordinates grow downward from the port's top: what the context's own are moved and
// scaled by is mirrored.
void CGContextTranslateCTM(CGContext* context, CGFloat x, CGFloat y) {
    context->painter().translate(x, -y);
}

void CGContextScaleCTM(CGContext* context, CGFloat x, CGFloat y) {
    context->painter().translate(0, context->height() * (1 - y));
    context->painter().scale(x, y);
}

void CGContextSaveGState(CGContext* context) {
    context->painter().save();
}

void CGContextRestoreGState(CGContext* context) {
    context->painter().restore();
}
