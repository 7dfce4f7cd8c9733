// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPopUpButton.h"
#include "src/pane/palette/PaletteView.h"
#include "src/store/prefs.h"

class BumperController;
class NSButton;
class NSMatrix;
class NSMenuItem;
class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for the palette's buttons: which there are and how the agent draws them.
/// After an edit of a slot nothing is selected. The interface file fills the public fields; none is
/// owned.
class PaletteEditor final : public NSMenuDelegate, public PaletteViewTarget {
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

    /// `changes` is told of every edit; not owned.
    explicit PaletteEditor(NumberChangeTarget& changes) : changes_(changes) {}

    /// Binds the controls. The menus' items send addPaletteBtn: and setPaletteBtnAction: to
    /// `menuTarget`. Owns none of them.
    void setup(NSObject& menuTarget);

    // Each shows a part of the record. `load` shows the rest and clears the selection;
    // updateButtonSizes shows the sizes.
    void loadShape();
    void loadContent();
    void load();

    /// Adds an item for every action that has a title. It sends the selector, with the action's
    /// number as tag.
    void addActionMenuToCtl(NSPopUpButton* ctl, SEL selector, NSObject& target);
    /// Gives the items of an action menu their icons. They are read only when the menu opens.
    void menuNeedsUpdate(NSPopUpButton* menu) override;

    /// The first empty slot after the given one, or kNoButton.
    SInt32 emptyPaletteBtnAfter(SInt32 slot) const;
    /// The first slot of the last run of empty ones, or kNoButton.
    SInt32 newPaletteBtnLocation() const;
    bool canAddPaletteBtn() const;

    /// Inserts the action before the selected button. Without room after it, uses the place for a
    /// new button. Beeps when there is none.
    void addPaletteBtn(const NSMenuItem& sender);
    void setPaletteBtnAction(const NSMenuItem& sender);
    void removePaletteButton();
    /// The next click in the palette view swaps the selected button with the clicked one, or
    /// cancels.
    void swapPaletteButtonWith();
    void paletteBtnHit(PaletteView* view, SInt32 index) override;
    void resetPaletteButtons();
    void updatePaletteCtls();
    /// Ends a swap and clears the selection.
    void resetPaletteControls();
    /// Moves the keyboard's place in the palette to the first slot that differs, if one does.
    void pointAtChange(const PrefsRecord& before, const PrefsRecord& after);

    void changedButtonShape(const NSMatrix& sender);
    void changedButtonContentName(const NSButton& sender);
    void changedButtonContentIcon(const NSButton& sender);
    /// Applies the bumpers' pending steps to the button size.
    void changedButtonSizes();
    /// Shows the size in its bumpers, which hold pending steps.
    void updateButtonSizes();

private:
    void setupButtonSizes();
    /// Sets the chosen sides to the typed length in points. False when that isn't possible.
    bool takeButtonSize(double typed, bool width, bool height);
    /// The slot that is selected in the palette view, or kNoButton.
    SInt32 selectedSlot() const;
    void commitPaletteEdit();
    /// Describes the selection, or what a swap waits for.
    void updatePalettePrompt();
    void setButtonContent(UInt32 bit, const NSButton& sender);

    NumberChangeTarget& changes_;
    SInt32 firstBtnToSwap_ = kNoButton; ///< the slot that a swap began with

    // Steps of the button size for changedButtonSizes. Not 0 only during its call.
    SInt32 buttonSizeChange_ = 0;
    SInt32 buttonWidthChange_ = 0;
    SInt32 buttonHeightChange_ = 0;
};
