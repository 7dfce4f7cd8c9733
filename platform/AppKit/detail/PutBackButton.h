// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/PaneStyle.h"

#include <QToolButton>

#include <functional>

/// Shows that a row's setting isn't at its default. It has a bar at the start of the row, which is
/// the widget around the button, and a button that puts the setting back. Both show only while
/// there is something to put back. But a button with focus or under the pointer stays and does
/// nothing, so that a second press hits nothing else. A change by key doesn't put the button
/// between the keyboard and what Tab goes to next: it is a Tab stop once the keyboard has left the
/// row.
class PutBackButton final : public QToolButton {
public:
    static constexpr int kSide = panestyle::kTarget; ///< points, as the next
    static constexpr int kRoom = kSide + 8;          ///< kept free in a row, shown or not

    explicit PutBackButton(QWidget* row);

    /// `label` says what a press does. Empty when there is nothing to put back.
    void offer(const QString& label, std::function<void()> press);

    /// The button directly in the widget, or null.
    static PutBackButton* of(const QWidget& row);

protected:
    bool eventFilter(QObject* row, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void hideWhenLeft();
    void becomeStop();
    bool isKeyboardInRow(const QWidget* focus) const;

    QWidget* bar_;                ///< the row's
    std::function<void()> press_; ///< empty: nothing to put back
};
