// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "src/tryout/pasttry.h"

#include <array>

/// The tries so far. A line shows the spread of the presses from try to try. Beside it, or below it
/// where there isn't enough room, is a table of the last tries. A screen reader finds every try in
/// it; arrow keys move through them.
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
    static constexpr std::size_t kColumns = 5;
    using Cells = std::array<std::string, kColumns>;

    static Cells cellsOf(std::string_view row);
    void measure();
    void makeRoomFor(const Cells& cells);
    void drawChart() const;
    void drawTable() const;
    void drawRow(const Cells& cells, const NSRect& row) const;
    double chartTop() const;
    bool hasTableBeside() const;
    NSRect chartFrame() const;
    NSRect tableFrame() const;
    NSRect rowFrame(int index) const;
    int firstRow() const;
    void choose(int index);

    std::vector<tryout::PastTry> tries_;
    std::array<float, kColumns> widths_ = {}; ///< of the table's columns
    float captionWidth_ = 0;                  ///< the chart's
    float rowHeight_ = 24;
    bool isMeasured_ = false; ///< all three
    int current_ = 0;         ///< where the keyboard is
};
