// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSFont.h"

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QFontInfo>
#include <QGuiApplication>

double NSFont::smallSystemFontSize() {
    const GrafPort* port = GrafPort::current();
    const QFont font = port ? port->widget().font() : QGuiApplication::font();
    return QFontInfo(font).pointSizeF() * 11 / 13;
}
