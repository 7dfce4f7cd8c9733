// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/OptionRow.h"

#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/PaneStyle.h"
#include "platform/AppKit/detail/RowText.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int kSide = 16; // points, as all here; those of RowLayout
constexpr int kAbove = 9;
constexpr int kGap = 12; // between the indicator and the text
constexpr int kLineGap = 2;
constexpr int kCaption = Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextWordWrap;
constexpr int kExplanation = Qt::AlignLeft | Qt::TextWordWrap;
constexpr int kHintWidth = 4000;

} // namespace

QSize OptionLook::textSize(int width) const {
    const QFontMetrics metrics = button_.fontMetrics();
    const auto size = [&](const QString& text, int flags) {
        return text.isEmpty() ? QSize()
                              : metrics.boundingRect(0, 0, width, kHintWidth, flags, text).size();
    };
    const QSize caption = size(button_.text(), kCaption);
    const QSize beneath = size(explanation(), kExplanation);
    return {std::max(caption.width(), beneath.width()),
            caption.height() + (beneath.isEmpty() ? 0 : kLineGap + beneath.height())};
}

/// The mirror image of a place in a language that is written from right to left.
QRect OptionLook::mirrored(const QRect& rect, const QRect& part) const {
    return QStyle::visualRect(button_.layoutDirection(), rect, part);
}

QRect OptionLook::indicatorRect(const QRect& rect) const {
    const int side = panestyle::kIndicator;
    const int x =
        indicatorAtRight_ ? rect.right() + 1 - kSide - side : rect.x() + kSide + rowIndent(button_);
    return mirrored(rect, {x, rect.center().y() - side / 2, side, side});
}

QRect OptionLook::textRect(const QRect& rect) const {
    const int beside = panestyle::kIndicator + kGap;
    const int left = kSide + rowIndent(button_);
    return mirrored(rect,
                    rect.adjusted(indicatorAtRight_ ? left : left + beside, kAbove,
                                  (indicatorAtRight_ ? -kSide - beside : -kSide) - room_, -kAbove));
}

QRect OptionLook::putBackRect(const QRect& rect) const {
    const int side = PutBackButton::kSide;
    const QRect text = mirrored(rect, textRect(rect)); // as from the left
    return mirrored(
        rect, {text.right() + 1 + room_ - side, rect.y() + (rect.height() - side) / 2, side, side});
}

int OptionLook::widthHint() const {
    const QRect probe(0, 0, kHintWidth, 0);
    return textSize(kHintWidth).width() + kHintWidth - textRect(probe).width();
}

int OptionLook::heightForWidth(int width) const {
    const int room = std::max(1, textRect({0, 0, width, 0}).width());
    return std::max(panestyle::kTarget, textSize(room).height() + 2 * kAbove);
}

void OptionLook::draw(QWidget& row, QStyle::PrimitiveElement indicator,
                      const QStyleOption& option) const {
    drawRowLine(row);
    QPainter painter(&row);
    const PaneColors colors(row.palette());
    const bool enabled = row.isEnabled();
    const QRect room = textRect(row.rect());
    const int height = textSize(room.width()).height();
    QRect place(room.x(), room.center().y() - height / 2, room.width(), height);
    QRect used;
    painter.setPen(enabled ? colors.text : colors.disabledText);
    painter.drawText(place, kCaption, button_.text(), &used);
    place.setTop(used.bottom() + 1 + kLineGap);
    painter.setPen(enabled ? colors.quietText : colors.disabledText);
    painter.drawText(place, kExplanation, explanation());

    QStyleOptionButton mark;
    mark.QStyleOption::operator=(option);
    mark.state = option.state;
    mark.rect = indicatorRect(row.rect());
    row.style()->drawPrimitive(indicator, &mark, &painter, &row);
    if (row.hasFocus())
        panestyle::drawRing(painter, row, QRectF(row.rect()).adjusted(3, 3, -3, -3));
}
