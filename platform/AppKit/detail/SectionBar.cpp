// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SectionBar.h"

#include "platform/AppKit/detail/ListAccessibility.h"
#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/PaneStyle.h"
#include "platform/AppKit/detail/RowText.h"
#include "platform/AppKit/detail/SectionIcons.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOptionTab>

#include <algorithm>

namespace {

constexpr int kRowHeight = 56; // points, as all here
constexpr int kSpace = 4;      // between two sections
constexpr int kAbove = 10;     // at least, above and below the texts
constexpr int kSide = 14;
constexpr int kIcon = 24;
constexpr int kStripe = 4; // at the edge of the current section
constexpr int kLeastWidth = 180;

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* bar = dynamic_cast<SectionBar*>(object);
    return bar ? new ListInterface(*bar, *bar, QAccessible::PageTabList, QAccessible::PageTab)
               : nullptr;
}

} // namespace

SectionBar::SectionBar(QWidget* parent) : QTabBar(parent) {
    [[maybe_unused]] static const bool isKnown = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    setShape(RoundedWest);
    setDrawBase(false);
    setUsesScrollButtons(true);
}

// The name comes last: no other text has the tabs measured again.
void SectionBar::addSection(const QString& name, const QString& holds, const QString& icon) {
    const int index = addTab(QString());
    setTabData(index, icon);
    setTabToolTip(index, holds);
    setTabText(index, name);
}

NSAccessibilityElement SectionBar::accessibilityElement(int index) const {
    const QRect frame = tabRect(index);
    return {.label = withoutMnemonic(tabText(index)).toStdString(),
            .frame = {static_cast<float>(frame.x()), static_cast<float>(frame.y()),
                      static_cast<float>(frame.width()), static_cast<float>(frame.height())},
            .isSelected = index == currentIndex(),
            .help = tabToolTip(index).toStdString()};
}

QSize SectionBar::tabSizeHint(int index) const {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int text = std::max(metrics.size(Qt::TextShowMnemonic, tabText(index)).width(),
                              fontMetrics().horizontalAdvance(tabToolTip(index)));
    return {std::max(kLeastWidth, 3 * kSide + kIcon + text),
            std::max(kRowHeight, metrics.height() + fontMetrics().height() + 2 * kAbove) + kSpace};
}

QSize SectionBar::minimumTabSizeHint(int index) const {
    return tabSizeHint(index);
}

bool SectionBar::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) // which is in sight already
        return true;
    const bool done = QTabBar::event(event);
    if (event->type() == QEvent::Shortcut && onLetter)
        onLetter();
    return done;
}

/// The section's name, and below it what the section holds.
void SectionBar::drawTexts(QPainter& painter, int index, const QRect& place) const {
    const PaneColors colors(palette());
    QFont name = font();
    name.setBold(index == currentIndex());
    const QFontMetrics metrics(name);
    QRect line(place.x(), 0, place.width(), metrics.height());
    line.moveTop(place.center().y() - (line.height() + fontMetrics().height()) / 2);
    painter.setFont(name);
    painter.setPen(colors.text);
    painter.drawText(line, Qt::AlignLeft | Qt::TextShowMnemonic, tabText(index));
    line.moveTop(line.bottom() + 1);
    line.setHeight(fontMetrics().height());
    painter.setFont(font());
    painter.setPen(colors.quietText);
    painter.drawText(line, Qt::AlignLeft, tabToolTip(index));
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
        drawTexts(painter, index, mirrored(row.adjusted(2 * kSide + kIcon, 0, 0, 0)));
        if (current && hasFocus())
            panestyle::drawRing(painter, *this, QRectF(row));
    }
}
