// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

constexpr int kColumnWidth = 780; ///< points, at most

/// The cards of a page, as the form's vertical layout has them: one below the other, in the middle
/// of the page, or where there is room in two columns, the second going on where the first ends.
class CardColumns final : public QWidget, public FormPart {
public:
    using QWidget::QWidget;

    void build() override;

    /// Wide enough for that many columns, and as high as the cards then are.
    QSize sizeIn(int columns) const;
};
