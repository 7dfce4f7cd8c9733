// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/PaneStyle.h"

#include <QToolButton>

#include <functional>

/// Shows that what a row sets isn't at its default: a bar at the start of the widget that holds the
/// button, which is the row, and the button itself, which puts it back. Both show only while there
/// is something to put back; but the button stays, and does nothing, as long as it has the keyboard
/// or the pointer, so that a second press hits nothing else.
class PutBackButton final : public QToolButton {
public:
    static constexpr int kSide = panestyle::kTarget; ///< points, as the next
    static constexpr int kRoom = kSide + 8;          ///< that a row keeps free, shown or not

    explicit PutBackButton(QWidget* row);

    /// `label`: what a press does, in words; empty when there is nothing to put back.
    void offer(const QString& label, std::function<void()> press);

    /// The one that the widget itself holds; null for none.
    static PutBackButton* of(const QWidget& row);

protected:
    bool eventFilter(QObject* row, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void hideWhenLeft();

    QWidget* bar_;                ///< the row's
    std::function<void()> press_; ///< empty: nothing to put back
};
