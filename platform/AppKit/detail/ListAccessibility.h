// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

#include <vector>

class NSAccessibilityList;

/// A widget as a list of elements. Each has an action that presses it. Borrows both.
class ListInterface final : public QAccessibleWidget {
public:
    ListInterface(QWidget& widget, NSAccessibilityList& list,
                  QAccessible::Role role = QAccessible::List,
                  QAccessible::Role elementRole = QAccessible::ListItem);
    ~ListInterface() override;

    using QAccessibleWidget::widget;

    NSAccessibilityList& list() const { return list_; }

    QAccessible::Role elementRole() const { return elementRole_; }

    /// Also for a widget with a window of its own: a menu belongs to its button.
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* element) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    NSAccessibilityList& list_;
    QAccessible::Role elementRole_;
    mutable std::vector<QAccessible::Id> elements_; ///< made when they are first asked for
};
