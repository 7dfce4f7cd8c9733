// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSMatrix.h"

#include "platform/AppKit/detail/KeyboardFocus.h"
#include "platform/AppKit/detail/ToggleAction.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVariant>

#include <algorithm>

namespace {

bool isEnabledItself(const QAbstractButton* button) {
    return button->isEnabledTo(button->parentWidget());
}

/// The innermost matrix around a button.
const QWidget* matrixOf(const QWidget* button) {
    const QWidget* around = button->parentWidget();
    while (around && around->property("customClass") != QLatin1String("NSMatrix"))
        around = around->parentWidget();
    return around;
}

// Tab reaches the selected cell, or the first enabled one if that is disabled.
void chooseTabStop(const QButtonGroup* group) {
    const QAbstractButton* stop = group->checkedButton();
    const auto buttons = group->buttons();
    if (!stop || !isEnabledItself(stop)) {
        const auto usable = std::find_if(buttons.begin(), buttons.end(), isEnabledItself);
        stop = usable == buttons.end() ? nullptr : *usable;
    }
    for (QAbstractButton* button : buttons)
        button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

int NSCell::tag() const {
    return button_->property("tag").toInt();
}

void NSCell::setEnabled(bool enabled) {
    button_->setEnabled(enabled);
    chooseTabStop(button_->group());
}

void NSMatrix::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* group = new QButtonGroup(widget);
    for (QRadioButton* button : widget->findChildren<QRadioButton*>()) {
        if (matrixOf(button) != widget)
            continue;
        group->addButton(button);
        cells_.push_back(std::make_unique<NSCell>(button));
        connectToggleAction(button, [this, group, button] {
            if (!button->isChecked())
                return; // the newly checked one reports for both
            chooseTabStop(group);
            sendActionOutsideEvents();
        });
    }
    chooseTabStop(group);
    QObject::connect(group, &QButtonGroup::buttonClicked, widget, [this, group] {
        chooseTabStop(group);
        sendAction();
    });
}

int NSMatrix::selectedTag() const {
    for (const auto& cell : cells_) {
        if (cell->button_->isChecked())
            return cell->tag();
    }
    return -1;
}

bool NSMatrix::selectCellWithTag(int tag) {
    const NSCell* cell = cellWithTag(tag);
    if (!cell)
        return false;
    QAbstractButton* button = cell->button_;
    const QWidget* focus = button->window()->focusWidget();
    const QSignalBlocker blocker(button);
    button->setChecked(true);
    chooseTabStop(button->group());
    // The arrow keys start at the focused cell.
    if (focus && focus != button && widget()->isAncestorOf(focus) && button->isEnabled())
        button->setFocus(Qt::OtherFocusReason);
    return true;
}

NSCell* NSMatrix::cellWithTag(int tag) const {
    for (const auto& cell : cells_) {
        if (cell->tag() == tag)
            return cell.get();
    }
    return nullptr;
}
