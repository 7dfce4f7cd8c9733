// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

#include <memory>
#include <vector>

class QAbstractButton;

/// One button of a matrix.
class NSCell {
public:
    explicit NSCell(QAbstractButton* button) : button_(button) {}

    int tag() const;
    /// An enabled cell of a disabled matrix can't be clicked either.
    void setEnabled(bool enabled);

private:
    friend class NSMatrix;

    QAbstractButton* button_;
};

/// A group of radio buttons, of which one at a time is selected. Its cells are the radio buttons in
/// the widget that are in no matrix inside it, told apart by their tags. A click on the selected
/// cell sends the action as well. The Tab key stops once, at the selected cell; the arrow keys go
/// to the other cells and select them.
class NSMatrix final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    /// The selected cell's tag, or -1 when none is selected.
    int selectedTag() const;
    /// False, and nothing changes, when no cell has the tag.
    bool selectCellWithTag(int tag);
    /// Null when no cell has the tag. Owned by the matrix.
    NSCell* cellWithTag(int tag) const;

    const std::vector<std::unique_ptr<NSCell>>& cells() const { return cells_; }

private:
    std::vector<std::unique_ptr<NSCell>> cells_;
};
