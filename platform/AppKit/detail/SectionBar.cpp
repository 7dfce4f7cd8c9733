// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SectionBar.h"

#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/PaneStyle.h"
#include "platform/AppKit/detail/SectionIcons.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOptionTab>

#include <algorithm>

namespace {

constexpr int kRowHeight = 52; // points, as all here
constexpr int kSpace = 4;      // between two sections
constexpr int kSide = 14;
constexpr int kIcon = 24;
constexpr int kStripe = 4; // at the edge of the current section
constexpr int kLeastWidth = 180;

} // namespace

SectionBar::SectionBar(QWidget* parent) : QTabBar(parent) {
    setShape(RoundedWest);
    setDrawBase(false);
    setUsesScrollButtons(true);
}

QSize SectionBar::tabSizeHint(int index) const {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int text = metrics.size(Qt::TextShowMnemonic, tabText(index)).width();
    return {std::max(kLeastWidth, 3 * kSide + kIcon + text),
            std::max(kRowHeight, metrics.height() + 2 * kSide) + kSpace};
}

QSize SectionBar::minimumTabSizeHint(int index) const {
    return tabSizeHint(index);
}

bool SectionBar::event(QEvent* event) {
    const bool done = QTabBar::event(event);
    if (event->type() == QEvent::Shortcut && onLetter)
        onLetter();
    return done;
}

void SectionBar::paintEvent(QPaintEvent*) {
    const PaneColors colors(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count(); ++index) {
        const QRect row = tabRect(index).adjusted(0, 0, 0, -kSpace);
        const auto mirrored = [&](const QRect& part) {
            return QStyle::visualRect(layoutDirection(), row, part);
        };
        const bool current = index == currentIndex();
        if (current) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colors.chosen);
            painter.drawRoundedRect(row, panestyle::kRadius, panestyle::kRadius);
            painter.setBrush(colors.accent);
            if (!hasFocus()) // or it has the ring
                painter.drawRoundedRect(mirrored({row.x(), row.y(), kStripe, row.height()}),
                                        kStripe / 2.0, kStripe / 2.0);
        }
        const QRect icon(row.x() + kSide, row.center().y() - kIcon / 2, kIcon, kIcon);
        drawSectionIcon(painter, tabData(index).toString(), mirrored(icon), colors.text);
        QFont shown = font();
        shown.setBold(current);
        painter.setFont(shown);
        painter.setPen(colors.text);
        painter.drawText(mirrored(row.adjusted(2 * kSide + kIcon, 0, 0, 0)),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, tabText(index));
        if (current && hasFocus())
            panestyle::drawRing(painter, *this, QRectF(row));
    }
}
