// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/WrapRow.h"

#include <QLayout>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int kGap = 8; // points between neighbouring controls

class WrapLayout final : public QLayout {
public:
    explicit WrapLayout(QWidget* parent) : QLayout(parent) {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(kGap);
    }

    ~WrapLayout() override { qDeleteAll(items_); }

    void addItem(QLayoutItem* item) override { items_ << item; }

    int count() const override { return static_cast<int>(items_.size()); }

    QLayoutItem* itemAt(int index) const override { return items_.value(index); }

    QLayoutItem* takeAt(int index) override {
        return index < count() ? items_.takeAt(index) : nullptr;
    }

    QSize sizeHint() const override {
        int width = 0;
        for (const QLayoutItem* item : items_)
            width += item->isEmpty() ? 0 : item->sizeHint().width() + spacing();
        return {width, heightForWidth(width)};
    }

    QSize minimumSize() const override {
        QSize least;
        for (const QLayoutItem* item : items_)
            least = least.expandedTo(item->minimumSize());
        return least;
    }

    // The default would include downwards. Then the card would grow with the page.
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }

    bool hasHeightForWidth() const override { return true; }

    int heightForWidth(int width) const override {
        return arrange(QRect(0, 0, width, 0), [](QLayoutItem*, const QRect&) {});
    }

    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        arrange(rect, [&](QLayoutItem* item, const QRect& place) {
            item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
        });
    }

private:
    /// Calls `put` with each item and its place. Returns the total height.
    template <class Put>
    int arrange(const QRect& rect, Put put) const {
        int x = rect.x(), y = rect.y(), lineHeight = 0;
        for (QLayoutItem* item : items_) {
            if (item->isEmpty())
                continue; // hidden
            const QSize size = item->sizeHint();
            if (x > rect.x() && x + size.width() > rect.x() + rect.width()) {
                x = rect.x();
                y += lineHeight + spacing();
                lineHeight = 0;
            }
            put(item, QRect(QPoint(x, y), size));
            x += size.width() + spacing();
            lineHeight = std::max(lineHeight, size.height());
        }
        return y + lineHeight - rect.y();
    }

    QList<QLayoutItem*> items_;
};

} // namespace

void WrapRow::build() {
    auto* wrapping = new WrapLayout(this);
    for (auto* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        wrapping->addWidget(child);
}
