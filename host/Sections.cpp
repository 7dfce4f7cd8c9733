// SPDX-License-Identifier: MIT
#include "host/Sections.h"

#include <QStackedWidget>
#include <QTabWidget>

namespace {

/// Turns every book that the page lies in to it.
void turnTo(QWidget* page) {
    for (QWidget* leaf = page; QWidget* book = leaf->parentWidget(); leaf = book) {
        if (auto* stack = qobject_cast<QStackedWidget*>(book))
            stack->setCurrentWidget(leaf);
        // A tab widget's own stack lies between it and its pages.
        if (auto* tabs = qobject_cast<QTabWidget*>(book); tabs && tabs->isAncestorOf(page))
            tabs->setCurrentIndex(tabs->indexOf(page));
    }
}

} // namespace

bool showSection(QWidget* pane, const QString& name) {
    for (QWidget* page : pane->findChildren<QWidget*>()) {
        const QString section = page->property("section").toString().replace(' ', '-');
        if (!section.isEmpty() && section.compare(name, Qt::CaseInsensitive) == 0) {
            turnTo(page);
            return true;
        }
    }
    return false;
}
