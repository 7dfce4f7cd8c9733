// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SettingRow.h"

#include "platform/AppKit/detail/PutBackButton.h"
#include "platform/AppKit/detail/RowLayout.h"
#include "platform/AppKit/detail/RowText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace {

constexpr int kGap = 8; // points between neighbouring controls

QHBoxLayout* makeLine(QWidget* parent) {
    auto* line = new QHBoxLayout(parent);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGap);
    return line;
}

} // namespace

void SettingRow::build() {
    const auto own = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    const QString caption = property("caption").toString();
    const RowText text(*this, caption, accessibleDescription());
    auto* putBack = new PutBackButton(this); // in the reading order before the controls
    auto* controls = new QWidget(this);
    controls->setObjectName(objectName() + QLatin1String("Controls"));
    QLayout* line = makeLine(controls);
    for (QWidget* control : own)
        line->addWidget(control);
    QLayout* arranged = makeLine(nullptr);
    arranged->addWidget(controls);
    new RowLayout(this, text, arranged, putBack, rowIndent(*this));
    for (auto* each : controls->findChildren<QWidget*>()) {
        if (each->focusPolicy() & Qt::TabFocus) {
            text.caption->setBuddy(each);
            break;
        }
    }
}

void SettingRow::paintEvent(QPaintEvent*) {
    drawRowLine(*this);
}
