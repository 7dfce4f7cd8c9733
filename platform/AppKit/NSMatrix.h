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
    /// A cell of a disabled matrix can't be clicked, even if it is enabled.
    void setEnabled(bool enabled);

private:
    friend class NSMatrix;

    QAbstractButton* button_;
};

/// A group of radio buttons, one of which is selected at a time. Its cells are the radio buttons in
/// the widget except those of an inner matrix. Tags identify them. Clicking the selected cell also
/// sends the action. Tab stops once, at the selected cell. Arrow keys move to the other cells and
/// select them.
class NSMatrix final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    /// The selected cell's tag. -1 when none is selected.
    int selectedTag() const;
    /// False when no cell has the tag; nothing changes then.
    bool selectCellWithTag(int tag);
    /// Null when no cell has the tag. Owned by the matrix.
    NSCell* cellWithTag(int tag) const;

    const std::vector<std::unique_ptr<NSCell>>& cells() const { return cells_; }

private:
    std::vector<std::unique_ptr<NSCell>> cells_;
};
