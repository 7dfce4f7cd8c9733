// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/CardColumns.h"

#include <QLayout>

#include <algorithm>
#include <climits>

namespace {

constexpr int kLeastWidth = 700; // points; of each of two columns

int heightOf(const QLayoutItem& item, int width) {
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

class CardLayout final : public QLayout {
public:
    CardLayout(QWidget* parent, int spacing) : QLayout(parent) { setSpacing(spacing); }

    ~CardLayout() override { qDeleteAll(items_); }

    /// Above all columns, with margins of its own; null for none. Not owned.
    void setAbove(QWidget* above) {
        above_ = above;
        invalidate();
    }

    void addItem(QLayoutItem* item) override { items_ << item; }

    int count() const override { return static_cast<int>(items_.size()); }

    QLayoutItem* itemAt(int index) const override { return items_.value(index); }

    QLayoutItem* takeAt(int index) override {
        return index < count() ? items_.takeAt(index) : nullptr;
    }

    QSize sizeHint() const override { return sizeIn(1); }

    QSize minimumSize() const override {
        QSize least;
        for (const QLayoutItem* item : items_)
            least = least.expandedTo(item->minimumSize());
        return least.grownBy(contentsMargins());
    }

    bool hasHeightForWidth() const override { return true; }

    int heightForWidth(int width) const override {
        const Columns columns = columnsIn(width);
        const auto [left, right] = heightsOf(columns);
        return heightAbove() + std::max(left, right) + contentsMargins().top() +
               contentsMargins().bottom();
    }

    QSize sizeIn(int columns) const {
        const QMargins around = contentsMargins();
        const int width =
            columns * kColumnWidth + (columns - 1) * spacing() + around.left() + around.right();
        return {width, heightForWidth(width)};
    }

    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        const QRect room = rect.marginsRemoved(contentsMargins());
        const Columns columns = columnsIn(rect.width());
        const int all = columns.end < count() ? 2 * columns.width + spacing() : columns.width;
        const int top = room.y() + heightAbove();
        QPoint place(room.x() + (room.width() - all) / 2, top);
        if (above_)
            above_->setGeometry({rect.topLeft(), QSize(rect.width(), above_->sizeHint().height())});
        for (int index = 0; index < count(); ++index) {
            if (index == columns.end)
                place = {place.x() + columns.width + spacing(), top};
            const QSize size(columns.width, heightOf(*items_[index], columns.width));
            items_[index]->setGeometry({place, size});
            place.ry() += size.height() + spacing();
        }
    }

private:
    struct Columns {
        int width; ///< of each
        int end;   ///< how many cards the first one has
    };

    Columns columnsIn(int width) const {
        const int room = width - contentsMargins().left() - contentsMargins().right();
        const int half = (room - spacing()) / 2;
        if (half < kLeastWidth || count() < 2)
            return {std::min(room, kColumnWidth), count()};
        Columns best{std::min(half, kColumnWidth), 1};
        int least = INT_MAX;
        for (int end = 1; end < count(); ++end) {
            const auto [left, right] = heightsOf({best.width, end});
            if (std::max(left, right) < least) {
                least = std::max(left, right);
                best.end = end;
            }
        }
        return best;
    }

    std::pair<int, int> heightsOf(const Columns& columns) const {
        int heights[2] = {-spacing(), -spacing()};
        for (int index = 0; index < count(); ++index)
            heights[index >= columns.end] += heightOf(*items_[index], columns.width) + spacing();
        return {heights[0], heights[1]};
    }

    int heightAbove() const { return above_ ? above_->sizeHint().height() : 0; }

    QList<QLayoutItem*> items_;
    QWidget* above_ = nullptr;
};

} // namespace

void CardColumns::build() {
    const int spacing = layout()->spacing();
    const QMargins margins = layout()->contentsMargins();
    delete layout(); // not the widgets
    auto* cards = new CardLayout(this, spacing);
    cards->setContentsMargins(margins);
    for (auto* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        cards->addWidget(child);
}

void CardColumns::setAbove(QWidget* above) {
    if (above) {
        above->setParent(this);
        above->lower(); // first in the reading order
    }
    static_cast<CardLayout*>(layout())->setAbove(above);
}

QSize CardColumns::sizeIn(int columns) const {
    const auto* cards = dynamic_cast<const CardLayout*>(layout());
    return cards ? cards->sizeIn(columns) : sizeHint(); // before it is built
}
