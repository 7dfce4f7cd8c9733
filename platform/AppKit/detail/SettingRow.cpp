// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SettingRow.h"

#include "platform/AppKit/detail/PutBackButton.h"
#include "platform/AppKit/detail/RowLayout.h"
#include "platform/AppKit/detail/RowText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace {

QLayout* moveLayout(QWidget& row, QWidget& into) {
    into.setLayout(row.layout()); // which takes the widgets along
    into.layout()->setContentsMargins(0, 0, 0, 0);
    auto* controls = new QHBoxLayout;
    controls->setContentsMargins(0, 0, 0, 0);
    controls->addWidget(&into);
    return controls;
}

} // namespace

void SettingRow::build() {
    const QString caption = property("caption").toString();
    const RowText text(*this, caption, accessibleDescription());
    explanation_ = text.explanation;
    auto* putBack = new PutBackButton(this); // in the reading order before the controls
    auto* controls = new QWidget(this);
    controls->setObjectName(objectName() + QLatin1String("Controls"));
    QLayout* arranged = moveLayout(*this, *controls);
    new RowLayout(this, text.layout(), arranged, putBack, rowIndent(*this));
    for (auto* each : controls->findChildren<QWidget*>()) {
        if (each->focusPolicy() & Qt::TabFocus) {
            text.caption->setBuddy(each);
            break;
        }
    }
}

void SettingRow::setCompact(bool compact) {
    showExplanation(*this, explanation_, compact);
}

void SettingRow::paintEvent(QPaintEvent*) {
    drawRowLine(*this);
}
