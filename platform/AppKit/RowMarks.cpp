// SPDX-License-Identifier: MIT
#include "platform/AppKit/RowMarks.h"

#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/KeyboardFocus.h"
#include "platform/AppKit/detail/PutBackButton.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace {

bool isButton(const QWidget* widget) {
    return qobject_cast<const QPushButton*>(widget) || qobject_cast<const QToolButton*>(widget);
}

bool canBeOperated(const QWidget* widget) {
    const bool takesKeyboard =
        (widget->focusPolicy() & Qt::TabFocus) || qobject_cast<const QSlider*>(widget);
    return takesKeyboard && widget->isEnabled() && widget->isVisible() &&
           !qobject_cast<const QLineEdit*>(widget) && !dynamic_cast<const PutBackButton*>(widget);
}

/// The first in the tab order that is the widget or in it. Null for none.
QWidget* firstIn(const QWidget* around, bool orButton) {
    QWidget* const window = around->window();
    for (QWidget* each = window->nextInFocusChain(); each != window;
         each = each->nextInFocusChain())
        if ((each == around || around->isAncestorOf(each)) && canBeOperated(each) &&
            (orButton || !isButton(each)))
            return each;
    return nullptr;
}

QWidget* rowAround(const NSView& view) {
    QWidget* row = view.widget();
    while (row && !PutBackButton::of(*row))
        row = row->parentWidget();
    return row;
}

} // namespace

void setRowMark(const NSView& view, const std::string& label, std::function<void()> press) {
    const QString text = QString::fromStdString(label);
    bool isGroupOfRows = false;
    for (auto* radio : view.widget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        if (auto* button = PutBackButton::of(*radio)) {
            isGroupOfRows = true;
            button->offer(radio->isChecked() ? text : QString(), press);
        }
    }
    if (isGroupOfRows)
        return;
    if (QWidget* row = rowAround(view))
        PutBackButton::of(*row)->offer(text, std::move(press));
}

void setRowHidden(const NSView& view, bool hidden) {
    QWidget* row = rowAround(view);
    if (!row)
        return;
    if (hidden)
        moveFocusOutOf(row);
    row->setHidden(hidden);
}

// A button comes last: another press of the key that undid something would press it.
void focusRow(const NSView& view) {
    for (auto* radio : view.widget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
        if (radio->isChecked())
            return radio->setFocus(Qt::OtherFocusReason);
    for (const QWidget* around = view.widget(); around; around = around->parentWidget())
        for (const bool orButton : {false, true})
            if (QWidget* found = firstIn(around, orButton))
                return found->setFocus(Qt::OtherFocusReason);
}
