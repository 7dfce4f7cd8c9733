// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QString;
class QWidget;

/// The text at the left of a row: its caption and, in a weaker colour, the explanation. The row
/// owns both.
struct RowText {
    /// `caption` may have a mnemonic marked with “&”. An empty explanation makes no label.
    RowText(QWidget& row, const QString& caption, const QString& explanation);

    QLabel* caption;
    QLabel* explanation; ///< null for none
};

/// A row of the form, around its controls.
class FormRow {
protected:
    virtual ~FormRow() = default;
};

/// A text without the mark of its mnemonic.
QString withoutMnemonic(QString text);

/// How far the property `indented` moves a row's text to the right, in points.
int rowIndent(const QWidget& row);

/// Whether the widget is in a row of the form.
bool isInRow(const QWidget& widget);

/// Draws the line between a row and the one above it in the same card.
void drawRowLine(QWidget& row);
