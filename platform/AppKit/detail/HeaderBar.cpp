// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/HeaderBar.h"

#include "platform/AppKit/detail/PaneColors.h"

#include <QPainter>

void HeaderBar::paintEvent(QPaintEvent*) {
    const PaneColors colors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.card);
    painter.setPen(colors.cardLine);
    painter.drawLine(0, height() - 1, width(), height() - 1);
}
