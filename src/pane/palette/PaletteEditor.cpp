// SPDX-License-Identifier: MIT
#include "src/pane/palette/PaletteEditor.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSMenuItem.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/controls/BumperController.h"
#include "src/record/numbertext.h"
#include "src/scan/palutil.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

constexpr SInt32 kLastSlot = kNumPaletteSlots - 1;

bool isEmptySlot(SInt32 slot) {
    return prefs.buttonActions[slot] == kEmptyAction;
}

} // namespace

void PaletteEditor::setup(NSObject& menuTarget) {
    setupButtonSizes();
    paletteView->setTarget(this);
    addActionMenuToCtl(addButtonBtn, menuTarget.selector("addPaletteBtn:"), menuTarget);
    addActionMenuToCtl(setActionBtn, menuTarget.selector("setPaletteBtnAction:"), menuTarget);
}

void PaletteEditor::setupButtonSizes() {
    const char* const format = LOCALIZABLE_COUNT("Formats", "%.0f points");
    const auto points = [format](int size) { return numberText(format, size); };
    const auto both = [points] {
        const ButtonSize size = prefs.buttonSize;
        return size.width == size.height
                   ? points(size.width)
                   : std::to_string(size.width) + " × " + std::to_string(size.height);
    };

    const struct {
        BumperController* bumper;
        SInt32* pending;
        ChangeMask changes;
        std::function<std::string()> text;
        bool width, height; ///< the sides that it changes
    } rows[] = {
        {buttonHeight, &buttonHeightChange_, kChangeButtonHeightBump,
         [points] { return points(prefs.buttonSize.height); }, false, true},
        {buttonSize, &buttonSizeChange_, kChangeButtonSizeBump, both, true, true},
        {buttonWidth, &buttonWidthChange_, kChangeButtonWidthBump,
         [points] { return points(prefs.buttonSize.width); }, true, false},
    };

    for (const auto& row : rows) {
        row.bumper->setKind(kNumberKindSInt32, row.pending, -10, 10, 1, row.changes);
        row.bumper->setFormat(format);
        row.bumper->setDisplay({row.text,
                                [this, width = row.width, height = row.height](double typed) {
                                    return takeButtonSize(typed, width, height);
                                },
                                kMinButtonSize, kMaxButtonSize});
    }
}

void PaletteEditor::updateButtonSizes() {
    for (NumberController* bumper : {buttonHeight, buttonSize, buttonWidth})
        bumper->update();
}

bool PaletteEditor::takeButtonSize(double typed, bool width, bool height) {
    if (typed < kMinButtonSize || typed > kMaxButtonSize || typed != std::trunc(typed))
        return false;
    const auto size = static_cast<SInt32>(typed);
    buttonWidthChange_ = width ? size - prefs.buttonSize.width : 0;
    buttonHeightChange_ = height ? size - prefs.buttonSize.height : 0;
    changes_.changed(kChangeButtonSizeBump);
    return true;
}

void PaletteEditor::loadShape() {
    buttonShapeRadios->selectCellWithTag(static_cast<int>(prefs.buttonShape));
}

void PaletteEditor::loadContent() {
    for (const auto& [check, bit] : {std::pair(buttonContentIconCheck, kButtonContentIcon),
                                     {buttonContentNameCheck, kButtonContentName}})
        check->setState(prefs.buttonContent & bit ? NSOnState : NSOffState);
}

void PaletteEditor::load() {
    buttonHeightChange_ = buttonWidthChange_ = buttonSizeChange_ = 0;
    resetPaletteControls();
}

void PaletteEditor::addActionMenuToCtl(NSPopUpButton* ctl, SEL selector, NSObject& target) {
    for (int action = 0; action < kNumActions; ++action) {
        const auto title = palutilCopyShownTitle(static_cast<UInt8>(action));
        if (!title)
            continue;
        const std::string text = toUTF8(title.get());
        ctl->addItemWithTitle(text);
        NSMenuItem* item = ctl->itemWithTitle(text);
        item->setTag(action);
        item->setAction(selector);
        item->setTarget(&target);
    }
    ctl->setAutoenablesItems(false);
    ctl->setDelegate(this);
}

void PaletteEditor::menuNeedsUpdate(NSPopUpButton* menu) {
    for (const auto& item : menu->itemArray()) {
        const auto icon = palutilCopyActionIcon(static_cast<UInt8>(item->tag()));
        item->setImage(NSImage::imageWithIconRef(icon.get()));
    }
}

SInt32 PaletteEditor::emptyPaletteBtnAfter(SInt32 slot) const {
    for (SInt32 i = slot + 1; i <= kLastSlot; ++i)
        if (isEmptySlot(i))
            return i;
    return kNoButton;
}

SInt32 PaletteEditor::newPaletteBtnLocation() const {
    SInt32 slot = kLastSlot;
    while (slot >= 0 && !isEmptySlot(slot))
        --slot;
    while (slot > 0 && isEmptySlot(slot - 1))
        --slot;
    return slot; // -1, kNoButton, when no slot is empty
}

SInt32 PaletteEditor::selectedSlot() const {
    const SInt32 selected = paletteView->selectedBtn();
    return selected >= 0 && selected <= kLastSlot ? selected : kNoButton;
}

bool PaletteEditor::canAddPaletteBtn() const {
    const SInt32 selected = selectedSlot();
    return (selected != kNoButton && emptyPaletteBtnAfter(selected) != kNoButton) ||
           newPaletteBtnLocation() != kNoButton;
}

void PaletteEditor::commitPaletteEdit() {
    paletteView->setNeedsDisplay(true);
    resetPaletteControls();
    changes_.changed(kChangePalette);
}

void PaletteEditor::addPaletteBtn(const NSMenuItem& sender) {
    const auto action = static_cast<UInt8>(sender.tag());
    if (action >= kNumActions)
        return SysBeep(1);
    UInt8* const slots = prefs.buttonActions;
    const SInt32 selected = selectedSlot();
    const SInt32 empty = selected == kNoButton ? kNoButton : emptyPaletteBtnAfter(selected);
    if (empty != kNoButton) {
        // If the row's end has room, all later buttons move and gaps stay. Else the next gap is
        // used up.
        const SInt32 end = isEmptySlot(kLastSlot) ? kLastSlot : empty;
        std::copy_backward(slots + selected, slots + end, slots + end + 1);
        slots[selected] = action;
    } else {
        const SInt32 slot = newPaletteBtnLocation();
        if (slot == kNoButton)
            return SysBeep(1);
        slots[slot] = action;
    }
    commitPaletteEdit();
}

void PaletteEditor::setPaletteBtnAction(const NSMenuItem& sender) {
    const auto action = static_cast<UInt8>(sender.tag());
    const SInt32 selected = selectedSlot();
    if (action >= kNumActions || selected == kNoButton || prefs.buttonActions[selected] == action)
        return;
    prefs.buttonActions[selected] = action;
    commitPaletteEdit();
}

void PaletteEditor::removePaletteButton() {
    const SInt32 selected = selectedSlot();
    if (selected == kNoButton)
        return;
    UInt8* const slots = prefs.buttonActions;
    std::copy(slots + selected + 1, slots + kNumPaletteSlots, slots + selected);
    slots[kLastSlot] = kEmptyAction;
    commitPaletteEdit();
}

void PaletteEditor::swapPaletteButtonWith() {
    firstBtnToSwap_ = selectedSlot();
    updatePaletteCtls();
    // The other button is chosen there. By keyboard it would be four Tab stops back.
    paletteView->window().makeFirstResponder(paletteView);
}

void PaletteEditor::paletteBtnHit(PaletteView* view, SInt32 index) {
    if (firstBtnToSwap_ == kNoButton) {
        view->selectBtn(index);
        updatePaletteCtls();
        return;
    }
    if (index != kNoButton && index != firstBtnToSwap_) {
        std::swap(prefs.buttonActions[firstBtnToSwap_], prefs.buttonActions[index]);
        view->setNeedsDisplay(true);
        changes_.changed(kChangePalette);
    }
    resetPaletteControls();
}

void PaletteEditor::resetPaletteButtons() {
    const PrefsRecord defaults;
    std::copy(std::begin(defaults.buttonActions), std::end(defaults.buttonActions),
              prefs.buttonActions);
    commitPaletteEdit();
}

void PaletteEditor::updatePaletteCtls() {
    const bool hasSelection = selectedSlot() != kNoButton;
    const bool swapping = firstBtnToSwap_ != kNoButton;
    addButtonBtn->setEnabled(!swapping && canAddPaletteBtn());
    setActionBtn->setEnabled(hasSelection && !swapping);
    removeButtonBtn->setEnabled(hasSelection && !swapping);
    swapWithBtn->setEnabled(hasSelection);
    updatePalettePrompt();
}

void PaletteEditor::updatePalettePrompt() {
    const SInt32 selected = selectedSlot();
    if (firstBtnToSwap_ != kNoButton)
        palettePrompt->setStringValue(
            filled(localized("Palette", "Choose the button to swap with button %1. The same button "
                                        "again, or Escape, cancels."),
                   {paletteSlotName(firstBtnToSwap_)}));
    else if (selected != kNoButton)
        palettePrompt->setStringValue(
            filled(localized("Palette", "Chosen: button %1."), {paletteSlotName(selected)}));
    else
        palettePrompt->setStringValue(localized("Palette", "Choose a button to change it."));
}

void PaletteEditor::resetPaletteControls() {
    firstBtnToSwap_ = kNoButton;
    paletteView->selectBtn(kNoButton);
    updatePaletteCtls();
}

void PaletteEditor::changedButtonShape(const NSMatrix& sender) {
    prefs.buttonShape = static_cast<UInt32>(sender.selectedTag());
    changes_.changed(kChangePalette);
}

void PaletteEditor::setButtonContent(UInt32 bit, const NSButton& sender) {
    if (sender.state() == NSOnState)
        prefs.buttonContent |= bit;
    else
        prefs.buttonContent &= ~bit;
    changes_.changed(kChangePalette);
}

void PaletteEditor::changedButtonContentName(const NSButton& sender) {
    setButtonContent(kButtonContentName, sender);
}

void PaletteEditor::changedButtonContentIcon(const NSButton& sender) {
    setButtonContent(kButtonContentIcon, sender);
}

void PaletteEditor::changedButtonSizes() {
    const auto limited = [](SInt32 size) {
        return static_cast<SInt16>(std::clamp(size, kMinButtonSize, kMaxButtonSize));
    };
    const ButtonSize size = {
        .height = limited(buttonSizeChange_ + buttonHeightChange_ + prefs.buttonSize.height),
        .width = limited(buttonSizeChange_ + buttonWidthChange_ + prefs.buttonSize.width)};
    buttonSizeChange_ = buttonWidthChange_ = buttonHeightChange_ = 0;
    if (size.height == prefs.buttonSize.height && size.width == prefs.buttonSize.width)
        return;
    prefs.buttonSize = size;
    changes_.changed(kChangePalette);
}

void PaletteEditor::pointAtChange(const PrefsRecord& before, const PrefsRecord& after) {
    const auto& actions = before.buttonActions;
    const auto* slot = std::ranges::mismatch(actions, after.buttonActions).in1;
    if (slot != std::end(actions))
        paletteView->moveCursor(static_cast<SInt32>(slot - actions));
}
