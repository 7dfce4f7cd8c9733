// SPDX-License-Identifier: MIT
#include "platform/AppKit/RowMarks.h"

#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/PutBackButton.h"

#include <QRadioButton>

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
    for (QWidget* row = view.widget(); row; row = row->parentWidget())
        if (auto* button = PutBackButton::of(*row))
            return button->offer(text, std::move(press));
}
