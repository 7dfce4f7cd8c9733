// SPDX-License-Identifier: MIT
#include "host/Sections.h"

#include <QStackedWidget>

namespace {

/// Shows the page in every stack around it.
void turnTo(QWidget* page) {
    for (QWidget* leaf = page; QWidget* around = leaf->parentWidget(); leaf = around)
        if (auto* stack = qobject_cast<QStackedWidget*>(around))
            stack->setCurrentWidget(leaf);
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
