// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SwitchCell.h"

#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/PaneStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int kPadding = 28; // points beside the text, both sides together
constexpr int kTightPadding = 18;
constexpr qreal kOutline = 2;

} // namespace

QSize SwitchCell::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    return {metrics.horizontalAdvance(text()) +
                (panestyle::isTight(*this) ? kTightPadding : kPadding),
            std::max(panestyle::kTarget, metrics.height() + 16)};
}

QSize SwitchCell::minimumSizeHint() const {
    return sizeHint();
}

bool SwitchCell::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

/// The cell that many places further on, or null.
SwitchCell* SwitchCell::other(int step) const {
    QList<SwitchCell*> cells;
    for (QObject* each : parentWidget()->children())
        if (auto* cell = dynamic_cast<SwitchCell*>(each))
            cells << cell;
    return cells.value(cells.indexOf(const_cast<SwitchCell*>(this)) + step);
}

void SwitchCell::keyPressEvent(QKeyEvent* event) {
    const int onward = isRightToLeft() ? -1 : 1; // what the right arrow does
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        step = -onward;
        break;
    case Qt::Key_Up:
        step = -1;
        break;
    case Qt::Key_Right:
        step = onward;
        break;
    case Qt::Key_Down:
        step = 1;
        break;
    case Qt::Key_Return: // with Alt, where Alt with Space is the window manager's
    case Qt::Key_Enter:
        click();
        return;
    default:
        QRadioButton::keyPressEvent(event);
        return;
    }
    if (SwitchCell* next = other(step))
        next->setFocus(Qt::OtherFocusReason);
}

void SwitchCell::paintEvent(QPaintEvent*) {
    const PaneColors colors(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = height() / 2.0;
    // The side towards the other cell lies outside, so only the outer corners are round.
    const bool isAtLeft = !other(isRightToLeft() ? 1 : -1);
    const QRectF whole =
        QRectF(rect()).adjusted(isAtLeft ? 0 : -radius, 0, isAtLeft ? radius : 0, 0);
    panestyle::drawBox(painter, whole, isChecked() ? colors.accent : colors.buttonFace,
                       isEnabled() ? colors.mark : colors.disabledText, kOutline, radius);
    QFont shown = font();
    shown.setBold(isChecked());
    painter.setFont(shown);
    painter.setPen(!isEnabled()  ? colors.disabledText
                   : isChecked() ? colors.onAccent
                                 : colors.text);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (!hasFocus())
        return;
    const QRectF inner = QRectF(rect()).adjusted(4, 4, -4, -4);
    panestyle::drawBox(painter, inner, Qt::NoBrush, isChecked() ? colors.onAccent : colors.accent,
                       panestyle::kRing, radius - 4);
}
