// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

constexpr int kColumnWidth = 780; ///< points, at most

/// The cards of a page, in the order of the form's vertical layout. They stand one below the other
/// in the middle of the page. Where there is room they stand in two columns: the first cards at the
/// left, the rest at the right.
class CardColumns final : public QWidget, public FormPart {
public:
    using QWidget::QWidget;

    void build() override;

    /// Shows a widget above the cards, as wide as the page; null for none. The caller puts the
    /// former one elsewhere.
    void setAbove(QWidget* above);

    /// The width of that many columns, and the height of the cards in them.
    QSize sizeIn(int columns) const;
};
