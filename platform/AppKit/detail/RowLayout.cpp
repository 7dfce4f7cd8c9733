// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/RowLayout.h"

#include "platform/AppKit/detail/CardColumns.h"
#include "platform/AppKit/detail/PutBackButton.h"

#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int kSide = 16;      // points, like all lengths here; the margins of a row
constexpr int kNarrowSide = 8; // and those of a row narrower than kNarrow
constexpr int kNarrow = 500;
constexpr int kAbove = 9;
constexpr int kGap = 16;         // between text and controls side by side
constexpr int kGapBeneath = 6;   // and one above the other
constexpr int kLineGap = 2;      // between caption and explanation
constexpr int kTextColumn = 13;  // heights of a line; the least width of a text beside controls
constexpr int kLeastHeight = 44; // of a row's contents
constexpr int kCardLine = 1;     // at either side

enum { kPutBack, kControls, kCaption }; // and the explanation, if there is one

int heightFor(const QLayoutItem& item, int width) {
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

RowLayout::RowLayout(QWidget* row, const RowText& text, QLayout* controls, QWidget* putBack,
                     int indent)
    : QLayout(row), indent_(indent) {
    setContentsMargins(0, 0, 0, 0);
    addWidget(putBack);
    addChildLayout(controls);
    items_ << controls;
    addWidget(text.caption);
    if (text.explanation)
        addWidget(text.explanation);
}

RowLayout::~RowLayout() {
    while (const QLayoutItem* item = takeAt(0)) // a nested layout removes itself
        delete item;
}

void RowLayout::addItem(QLayoutItem* item) {
    items_ << item;
}

int RowLayout::count() const {
    return static_cast<int>(items_.size());
}

QLayoutItem* RowLayout::itemAt(int index) const {
    return items_.value(index);
}

QLayoutItem* RowLayout::takeAt(int index) {
    return index < count() ? items_.takeAt(index) : nullptr;
}

QMargins RowLayout::margins(int width) const {
    return width < kNarrow ? QMargins(kNarrowSide + indent_ / 2, kAbove, kNarrowSide, kAbove)
                           : QMargins(kSide + indent_, kAbove, kSide, kAbove);
}

/// Takes the button's place from the right end of a part of the row.
QRect RowLayout::takePlace(QRect& part) {
    part.setWidth(part.width() - PutBackButton::kRoom);
    QRect button(0, 0, PutBackButton::kSide, PutBackButton::kSide);
    button.moveCenter(part.center());
    button.moveRight(part.right() + PutBackButton::kRoom);
    return button;
}

/// The least width of a text beside controls.
int RowLayout::textColumn() const {
    return kTextColumn * parentWidget()->fontMetrics().height();
}

/// The height of the labels, one above the other.
int RowLayout::textHeight(int width) const {
    int height = -kLineGap;
    for (int label = kCaption; label < count(); ++label)
        if (!items_[label]->isEmpty())
            height += heightFor(*items_[label], width) + kLineGap;
    return height;
}

RowLayout::Places RowLayout::places(const QRect& rect) const {
    constexpr int kRoom = PutBackButton::kRoom;
    const QRect room = rect.marginsRemoved(margins(rect.width()));
    const QLayoutItem& controls = *items_[kControls];
    const int beside = room.width() - kGap - textColumn() - kRoom;
    if (beside < controls.minimumSize().width())
        return placesBeneath(room);
    const int width = std::min(beside, controls.sizeHint().width());
    const int left = room.width() - kGap - width;
    const int height =
        std::max({textHeight(left - kRoom), heightFor(controls, width), kLeastHeight});
    const int shown = std::max(height, room.height());
    Places where{.text = {room.x(), room.y(), left, shown},
                 .controls = {room.x() + left + kGap, room.y(), width, shown},
                 .height = 2 * kAbove + height};
    where.putBack = takePlace(where.text);
    return where;
}

RowLayout::Places RowLayout::placesBeneath(const QRect& room) const {
    constexpr int kRoom = PutBackButton::kRoom;
    const QLayoutItem& controls = *items_[kControls];
    const bool isWide = room.width() >= controls.minimumSize().width() + kRoom;
    const int above = isWide ? textHeight(room.width())
                             : std::max(textHeight(room.width() - kRoom), kLeastHeight);
    const int beneath = heightFor(controls, room.width() - (isWide ? kRoom : 0));
    Places where{.text = {room.x(), room.y(), room.width(), above},
                 .controls = {room.x(), room.y() + above + kGapBeneath, room.width(), beneath},
                 .height = 2 * kAbove + above + kGapBeneath + beneath};
    where.putBack = takePlace(isWide ? where.controls : where.text);
    return where;
}

// The width of a row in a wide window, so that its labels needn't be measured for another one.
QSize RowLayout::sizeHint() const {
    return {kColumnWidth - 2 * kCardLine, kLeastHeight};
}

QSize RowLayout::minimumSize() const {
    const QMargins around = margins(0);
    return {items_[kControls]->minimumSize().width() + around.left() + around.right(),
            kLeastHeight};
}

bool RowLayout::hasHeightForWidth() const {
    return true;
}

int RowLayout::heightForWidth(int width) const {
    return places(QRect(0, 0, width, 0)).height;
}

void RowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const Places where = places(rect);
    const auto put = [&](int item, const QRect& place) {
        items_[item]->setGeometry(
            QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
    };
    put(kPutBack, where.putBack);
    put(kControls, where.controls);
    const int width = where.text.width();
    int y = where.text.y() + (where.text.height() - textHeight(width)) / 2;
    for (int label = kCaption; label < count(); ++label) {
        const int height = heightFor(*items_[label], width);
        const QRect place(where.text.x(), y, width, height);
        // Its item would also measure it for other widths.
        items_[label]->widget()->setGeometry(
            QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
        y += height + kLineGap;
    }
}

Qt::Orientations RowLayout::expandingDirections() const {
    return Qt::Horizontal;
}
