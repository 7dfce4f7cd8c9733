// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/RowText.h"

#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/PaneStyle.h"

#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QVariant>

namespace {

constexpr int kSubordinate = panestyle::kIndicator + 12; // points: under the text of a radio button

QLabel* makeLabel(QWidget& row, const QString& text, const char* suffix) {
    auto* label = new QLabel(text, &row);
    label->setObjectName(row.objectName() + QLatin1String(suffix));
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    return label;
}

} // namespace

RowText::RowText(QWidget& row, const QString& captionText, const QString& explanationText)
    : caption(makeLabel(row, captionText, "Title")),
      explanation(explanationText.isEmpty() ? nullptr
                                            : makeLabel(row, explanationText, "Explanation")) {
    if (!explanation)
        return;
    explanation->setProperty("textColor", QStringLiteral("secondaryLabelColor"));
    // On entering a card, screen readers say all its labels without a buddy.
    explanation->setBuddy(&row);
}

QString withoutMnemonic(QString text) {
    static const QRegularExpression kMnemonic(QStringLiteral("&(.)"));
    return text.replace(kMnemonic, QStringLiteral("\\1"));
}

int rowIndent(const QWidget& row) {
    return row.property("indented").toBool() ? kSubordinate : 0;
}

bool isInRow(const QWidget& widget) {
    const QWidget* around = widget.parentWidget();
    while (around && !dynamic_cast<const FormRow*>(around))
        around = around->parentWidget();
    return around != nullptr;
}

void drawRowLine(QWidget& row) {
    if (row.y() <= row.parentWidget()->contentsRect().y())
        return;
    QPainter painter(&row);
    painter.setPen(PaneColors(row.palette()).cardLine);
    const int indent = rowIndent(row);
    row.isRightToLeft() ? painter.drawLine(0, 0, row.width() - indent, 0)
                        : painter.drawLine(indent, 0, row.width(), 0);
}
