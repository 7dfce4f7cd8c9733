// SPDX-License-Identifier: MIT
#include "platform/QuickDraw/detail/Frame.h"
#include "platform/QuickDraw/detail/GrafPort.h"

#include <limits>

namespace {

/// The largest region that 16 bits can describe.
QRect wideOpen() {
    using Limits = std::numeric_limits<SInt16>;
    return toQRect({Limits::min(), Limits::min(), Limits::max(), Limits::max()});
}

} // namespace

void RgnDisposer::operator()(QRegion* region) const {
    delete region;
}

RgnHandle NewRgn() {
    return RgnHandle(new QRegion);
}

void GetClip(const RgnHandle& region) {
    if (GrafPort* port = GrafPort::current())
        *region = port->painter().hasClipping() ? port->painter().clipRegion() : wideOpen();
}

void SetClip(const RgnHandle& region) {
    if (GrafPort* port = GrafPort::current())
        port->painter().setClipRegion(*region);
}

void ClipRect(const Rect* rect) {
    if (GrafPort* port = GrafPort::current())
        port->painter().setClipRect(toQRect(*rect));
}

void EraseRect(const Rect* rect) {
    if (GrafPort* port = GrafPort::current())
        port->painter().fillRect(toQRect(*rect), port->background);
}

void PenNormal() {
    if (GrafPort* port = GrafPort::current())
        port->painter().setPen(QPen(Qt::black, 1));
}

void FrameRect(const Rect* rect) {
    if (GrafPort* port = GrafPort::current())
        fillFrame(port->painter(), toQRect(*rect), 1, port->painter().pen().color());
}

void OffsetRect(Rect* rect, SInt16 dh, SInt16 dv) {
    *rect = toRect(toQRect(*rect).translated(dh, dv));
}
