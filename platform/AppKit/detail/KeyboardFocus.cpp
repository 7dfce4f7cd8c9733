// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/KeyboardFocus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusFrame>

namespace {

using Step = QWidget* (QWidget::*)() const;

bool takesPressesHarmlessly(const QWidget* widget) {
    return !qobject_cast<const QAbstractButton*>(widget) && widget->isEnabled() &&
           widget->isVisibleTo(widget->window()) && (widget->focusPolicy() & Qt::TabFocus);
}

QWidget* neighbour(const QWidget* leaving, const QWidget* group, Step step) {
    for (QWidget* next = (leaving->*step)(); next != leaving; next = (next->*step)()) {
        if (group->isAncestorOf(next) && !leaving->isAncestorOf(next) &&
            takesPressesHarmlessly(next))
            return next;
    }
    return nullptr;
}

/// A group shows no focus of its own, so it gets a frame while it has it.
void focusGroup(QWidget* group) {
    group->setFocus(Qt::OtherFocusReason);
    auto* frame = new QFocusFrame(group);
    frame->setWidget(group);
    QObject::connect(qApp, &QApplication::focusChanged, frame, [=] {
        if (group->window()->focusWidget() != group)
            frame->deleteLater();
    });
}

} // namespace

void moveFocusOutOf(const QWidget* leaving) {
    const QWidget* window = leaving->window();
    const QWidget* focus = window->focusWidget();
    if (!focus || window == leaving || (focus != leaving && !leaving->isAncestorOf(focus)))
        return;
    QWidget* const row = leaving->parentWidget();
    for (QWidget* group : {row, row->parentWidget()}) {
        for (const Step step : {&QWidget::nextInFocusChain, &QWidget::previousInFocusChain}) {
            if (QWidget* heir = group ? neighbour(leaving, group, step) : nullptr) {
                heir->setFocus(Qt::OtherFocusReason);
                return;
            }
        }
    }
    focusGroup(row);
}
