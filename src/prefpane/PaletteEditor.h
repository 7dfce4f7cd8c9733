// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPopUpButton.h"
#include "src/prefpane/PaletteView.h"
#include "src/prefs.h"

class BumperController;
class NSButton;
class NSMatrix;
class NSMenuItem;
class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for the palette's buttons: which they are, and how the agent draws them. An
/// edit of a slot leaves nothing selected. The interface file fills the public fields; none is
/// owned.
class PaletteEditor final : public NSMenuDelegate {
public:
    PaletteView* paletteView = nullptr;
    NSTextField* palettePrompt = nullptr;
    NSPopUpButton* addButtonBtn = nullptr;
    NSPopUpButton* setActionBtn = nullptr;
    NSButton* removeButtonBtn = nullptr;
    NSButton* swapWithBtn = nullptr;
    NSButton* resetActionsBtn = nullptr;
    NSMatrix* buttonShapeRadios = nullptr;
    NSButton* buttonContentIconCheck = nullptr;
    NSButton* buttonContentNameCheck = nullptr;
    BumperController* buttonHeight = nullptr;
    BumperController* buttonSize = nullptr;
    BumperController* buttonWidth = nullptr;

    /// `changes` hears of every edit; not owned.
    explicit PaletteEditor(NumberChangeTarget& changes) : changes_(changes) {}

    /// Binds the controls. The menus' items send addPaletteBtn: and setPaletteBtnAction: to
    /// `menuTarget`. None is owned.
    void setup(PaletteViewTarget& clicks, NSObject& menuTarget);

    // Each shows a part of the record; `load` has the rest, and leaves nothing selected. The sizes
    // are shown by updateButtonSizes.
    void loadShape();
    void loadContent();
    void load();

    /// Adds an item for every action that has a title; choosing it sends the selector, with the
    /// action's number as the item's tag.
    void addActionMenuToCtl(NSPopUpButton* ctl, SEL selector, NSObject& target);
    /// Gives the items of an action menu their icons, which are read only when it opens.
    void menuNeedsUpdate(NSPopUpButton* menu) override;

    /// The first empty slot after the given one, or kNoButton.
    SInt32 emptyPaletteBtnAfter(SInt32 slot) const;
    /// The first slot of the last run of empty ones, or kNoButton.
    SInt32 newPaletteBtnLocation() const;
    bool canAddPaletteBtn() const;

    /// Inserts the action before the selected button or, without room after it, takes the place for
    /// a new button. Beeps when there is none.
    void addPaletteBtn(const NSMenuItem& sender);
    void setPaletteBtnAction(const NSMenuItem& sender);
    void removePaletteButton();
    /// The next click in the palette view swaps the selected button with the one hit, or cancels.
    void swapPaletteButtonWith();
    void paletteBtnHit(PaletteView* view, SInt32 index);
    void resetPaletteButtons();
    void updatePaletteCtls();
    /// Ends a swap and clears the selection.
    void resetPaletteControls();
    /// Moves the keyboard's place in the palette to the first slot that differs, if one does.
    void pointAtChange(const PrefsRecord& before, const PrefsRecord& after);

    void changedButtonShape(const NSMatrix& sender);
    void changedButtonContentName(const NSButton& sender);
    void changedButtonContentIcon(const NSButton& sender);
    /// Folds the bumpers' pending steps into the button size.
    void changedButtonSizes();
    /// Has the bumpers of the size, which hold pending steps, show the size.
    void updateButtonSizes();

private:
    void setupButtonSizes();
    /// Makes the chosen sides as long as was typed, in points. False when they can't be that long.
    bool takeButtonSize(double typed, bool width, bool height);
    /// The slot that is selected in the palette view, or kNoButton.
    SInt32 selectedSlot() const;
    void commitPaletteEdit();
    /// Says what is selected and what a swap waits for.
    void updatePalettePrompt();
    void setButtonContent(UInt32 bit, const NSButton& sender);

    NumberChangeTarget& changes_;
    SInt32 firstBtnToSwap_ = kNoButton; ///< the slot that a swap began with

    // Steps of the button size that changedButtonSizes has yet to apply; 0 but while it is called.
    SInt32 buttonSizeChange_ = 0;
    SInt32 buttonWidthChange_ = 0;
    SInt32 buttonHeightChange_ = 0;
};
