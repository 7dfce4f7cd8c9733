#include "platform/AppKit/detail/KeyboardFocus.h"

#include <QWidget>

namespace {

using Step = QWidget* (QWidget::*)() const;

bool takesFocus(const QWidget* widget) {
    return widget->isEnabled() && widget->isVisibleTo(widget->window()) &&
           (widget->focusPolicy() & Qt::TabFocus);
}

QWidget* neighbour(const QWidget* leaving, const QWidget* group, Step step) {
    for (QWidget* next = (leaving->*step)(); next != leaving; next = (next->*step)()) {
        if (group->isAncestorOf(next) && !leaving->isAncestorOf(next) && takesFocus(next))
            return next;
    }
    return nullptr;
}

} // namespace

void moveFocusOutOf(const QWidget* leaving) {
    const QWidget* window = leaving->window();
    const QWidget* focus = window->focusWidget();
    if (!focus || window == leaving || (focus != leaving && !leaving->isAncestorOf(focus)))
        return;
    const QWidget* group = leaving->parentWidget();
    QWidget* heir = neighbour(leaving, group, &QWidget::nextInFocusChain);
    if (!heir)
        heir = neighbour(leaving, group, &QWidget::previousInFocusChain);
    if (!heir)
        heir = neighbour(leaving, window, &QWidget::nextInFocusChain);
    if (heir)
        heir->setFocus(Qt::OtherFocusReason);
}
