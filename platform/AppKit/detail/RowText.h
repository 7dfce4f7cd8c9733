// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QString;
class QWidget;

/// The text at the left of a row: its caption and, quieter, the reason for the setting. Both belong
/// to the row.
struct RowText {
    /// `caption` may hold a letter marked with “&”. An empty explanation makes no label.
    RowText(QWidget& row, const QString& caption, const QString& explanation);

    QLabel* caption;
    QLabel* explanation; ///< null for none
};

/// A row that can do without its explanation, which then shows beside the pointer.
class CompactRow {
public:
    virtual void setCompact(bool compact) = 0;

protected:
    ~CompactRow() = default;
};

/// Shows the explanation or, in a compact row, only beside the pointer.
void showExplanation(QWidget& row, QLabel* explanation, bool compact);

/// A text without the mark of its letter.
QString withoutMnemonic(QString text);

/// How far the form's property `indented` moves a row's text to the right, in points.
int rowIndent(const QWidget& row);

/// Whether the widget lies in a row of the form.
bool isInRow(const QWidget& widget);

/// Draws the line that parts a row from the one above it in the same card.
void drawRowLine(QWidget& row);
