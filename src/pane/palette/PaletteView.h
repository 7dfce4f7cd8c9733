// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSQuickDrawView.h"
#include "platform/CoreFoundation/CFBase.h"
#include "platform/QuickDraw/QuickDraw.h"

class PaletteView;

/// The index of no button: for a click beside the buttons, and for no selection.
constexpr SInt32 kNoButton = -1;

/// Is told of every click in a palette view.
class PaletteViewTarget {
public:
    /// `index` is 0 to 8, or kNoButton for a click beside the buttons.
    virtual void paletteBtnHit(PaletteView* view, SInt32 index) = 0;

protected:
    ~PaletteViewTarget() = default;
};

/// The palette editor's picture of the palette: the nine slots of `prefs` as a row of square
/// buttons. At most one is selected. The view reports clicks; it changes neither the record nor its
/// selection. Arrow keys move a cursor, Space or Return clicks there, and Escape clicks beside the
/// buttons.
class PaletteView final : public NSQuickDrawView, public NSAccessibilityList {
public:
    /// Not owned; null for none.
    void setTarget(PaletteViewTarget* target) { target_ = target; }

    /// Index 0 to 8, or kNoButton.
    SInt32 selectedBtn() const { return selectedBtn_; }

    /// The index isn't checked. kNoButton clears the selection.
    void selectBtn(SInt32 index);

    /// The button's place in the view when it was last drawn; empty before that, and for an index
    /// outside 0 to 8.
    NSRect boundsOfBtn(SInt32 index) const;

    void drawRect(const NSRect& dirtyRect) override;
    void mouseDown(NSEvent* event) override;
    void keyDown(NSEvent* event) override;

    bool acceptsFirstResponder() const override { return true; }

    int accessibilityCount() const override;
    NSAccessibilityElement accessibilityElement(int index) const override;

    int accessibilityFocusedIndex() const override { return cursor_; }

    void accessibilityPress(int index) override;

    /// The keyboard's place among the slots, which may be beyond the first or the last.
    void moveCursor(SInt32 index);

private:
    void calcBtnPlacement();
    void drawBtn(SInt32 index);
    void redrawBtn(SInt32 index);
    SInt32 btnAt(NSPoint point) const;
    void hit(SInt32 index);
    void pressed(const NSEvent& event, SInt32 index);

    SInt32 selectedBtn_ = 0;
    PaletteViewTarget* target_ = nullptr;
    NSRect btn0Frame_; ///< of the last draw
    float btnGap_ = 0; ///< between neighbours, negative when they overlap; of the last draw
    SInt32 cursor_ = 0;
};

/// A slot's name: its place and its action's title, such as "2, Double"; UTF-8. Empty for an index
/// outside 0 to 8.
std::string paletteSlotName(SInt32 index);
