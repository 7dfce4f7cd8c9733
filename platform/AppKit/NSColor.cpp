// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSColor.h"

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QGuiApplication>

#include <algorithm>

NSColor NSColor::keyboardFocusIndicatorColor() {
    const GrafPort* port = GrafPort::current();
    const QPalette palette = port ? port->widget().palette() : QGuiApplication::palette();
    const QColor color = palette.color(QPalette::Active, QPalette::Highlight);
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

void NSColor::set() const {
    GrafPort* port = GrafPort::current();
    if (!port)
        return;
    // Qt takes no other numbers. A component that is no number counts as 0.
    const auto component = [](double value) {
        return value > 0 ? static_cast<float>(std::min(value, 1.0)) : 0.0F;
    };
    const QColor color =
        QColor::fromRgbF(component(red_), component(green_), component(blue_), component(alpha_));
    QPen pen = port->painter().pen();
    pen.setColor(color);
    port->painter().setPen(pen);
    port->painter().setBrush(color);
}
