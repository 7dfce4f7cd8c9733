// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "src/tryout/pasttry.h"

/// The tries so far. At the left a line shows the spread of the presses from try to try; at the
/// right is a table of the last tries. A screen reader finds every try in it; arrow keys move
/// through them.
class HistoryView final : public NSView, public NSAccessibilityList {
public:
    /// Copies them; the oldest comes first.
    void setTries(std::vector<tryout::PastTry> tries);

    void drawRect(const NSRect& dirtyRect) override;
    void keyDown(NSEvent* event) override;

    bool acceptsFirstResponder() const override { return true; }

    int accessibilityCount() const override { return static_cast<int>(tries_.size()); }

    NSAccessibilityElement accessibilityElement(int index) const override;

    int accessibilityFocusedIndex() const override { return current_; }

    void accessibilityPress(int index) override;

private:
    void drawChart() const;
    void drawTable() const;
    NSRect rowFrame(int index) const;
    int firstRow() const;
    void choose(int index);

    std::vector<tryout::PastTry> tries_;
    int current_ = 0; ///< where the keyboard is
};
