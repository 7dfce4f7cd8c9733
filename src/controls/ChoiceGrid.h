// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSQuickDrawView.h"
#include "platform/QuickDraw/QuickDraw.h"

/// The choices of a grid. Indexes start at 0.
class ChoiceGridSource {
public:
    virtual int choiceCount() const = 0;
    virtual std::string choiceName(int index) const = 0; ///< in words; UTF-8
    virtual bool isChosen(int index) const = 0;
    /// Draws the choice's picture in the rectangle.
    virtual void drawChoice(int index, const Rect& bounds) const = 0;
    virtual void choose(int index) = 0;

    /// Whether each choice is a row as wide as the view, instead of a square.
    virtual bool isList() const { return false; }

protected:
    ~ChoiceGridSource() = default;
};

/// A grid of pictures with a name beneath, or a list of texts. Each is a button that makes its
/// choice. Arrow keys move a cursor; Space or Return presses the button there.
class ChoiceGrid final : public NSQuickDrawView, public NSAccessibilityList {
public:
    /// Not owned; null for none.
    void setSource(ChoiceGridSource* source) { source_ = source; }

    /// Reads the source's choices and which are chosen.
    void reload();

    void drawRect(const NSRect& dirtyRect) override;
    void mouseDown(NSEvent* event) override;
    void keyDown(NSEvent* event) override;

    bool acceptsFirstResponder() const override { return true; }

    int accessibilityCount() const override { return count_; }

    NSAccessibilityElement accessibilityElement(int index) const override;

    int accessibilityFocusedIndex() const override { return cursor_; }

    void accessibilityPress(int index) override;

private:
    void moveCursor(int index);
    int columns() const;
    NSSize choiceSize() const;
    NSRect frameOf(int index) const;
    void drawName() const;

    ChoiceGridSource* source_ = nullptr;
    int count_ = 0;
    int cursor_ = 0;
    int chosen_ = -1; ///< the first chosen one, or -1; as last reported to screen readers
};
