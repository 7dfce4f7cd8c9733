#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSMenuItem.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/prefpane/palutil.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr UInt8 defaultActions[kNumPaletteSlots] = {20, 21, 22, 1, 2, 0, 0, 0, 0};
constexpr SInt32 kLastSlot = kNumPaletteSlots - 1;

bool isEmptySlot(SInt32 slot) {
    return prefs.buttonActions[slot] == kEmptyAction;
}

} // namespace

void PreferenceWrangler::addActionMenuToCtl(NSPopUpButton* ctl, SEL selector) {
    for (int action = 0; action < kNumActions; ++action) {
        const CFString* title = palutilActionTitle(static_cast<UInt8>(action));
        if (!title)
            continue;
        const std::string text = CFStringToUTF8(title);
        ctl->addItemWithTitle(text);
        NSMenuItem* item = ctl->itemWithTitle(text);
        item->setTag(action);
        item->setAction(selector);
        item->setTarget(this);
    }
    ctl->setAutoenablesItems(false);
    ctl->setDelegate(this);
}

void PreferenceWrangler::menuNeedsUpdate(NSPopUpButton* menu) {
    for (const auto& item : menu->itemArray()) {
        const auto icon = palutilCopyActionIcon(static_cast<UInt8>(item->tag()));
        item->setImage(NSImage::imageWithIconRef(icon.get()));
    }
}

SInt32 PreferenceWrangler::emptyPaletteBtnAfter(SInt32 slot) const {
    for (SInt32 i = slot + 1; i <= kLastSlot; ++i)
        if (isEmptySlot(i))
            return i;
    return kNoButton;
}

SInt32 PreferenceWrangler::newPaletteBtnLocation() const {
    SInt32 slot = kLastSlot;
    while (slot >= 0 && !isEmptySlot(slot))
        --slot;
    while (slot > 0 && isEmptySlot(slot - 1))
        --slot;
    return slot; // -1, kNoButton, when no slot is empty
}

SInt32 PreferenceWrangler::selectedSlot() const {
    const SInt32 selected = paletteView_->selectedBtn();
    return selected >= 0 && selected <= kLastSlot ? selected : kNoButton;
}

bool PreferenceWrangler::canAddPaletteBtn() const {
    const SInt32 selected = selectedSlot();
    return (selected != kNoButton && emptyPaletteBtnAfter(selected) != kNoButton) ||
           newPaletteBtnLocation() != kNoButton;
}

void PreferenceWrangler::commitPaletteEdit() {
    paletteView_->setNeedsDisplay(true);
    resetPaletteControls();
    changed(kChangePalette);
}

void PreferenceWrangler::addPaletteBtn(NSMenuItem* sender) {
    const auto action = static_cast<UInt8>(sender->tag());
    if (action >= kNumActions)
        return SysBeep(1);
    UInt8* const slots = prefs.buttonActions;
    const SInt32 selected = selectedSlot();
    const SInt32 empty = selected == kNoButton ? kNoButton : emptyPaletteBtnAfter(selected);
    if (empty != kNoButton) {
        // With room at the row's end all of it moves, and so keeps its gaps; else the next gap
        // goes.
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

void PreferenceWrangler::setPaletteBtnAction(NSMenuItem* sender) {
    const auto action = static_cast<UInt8>(sender->tag());
    const SInt32 selected = selectedSlot();
    if (action >= kNumActions || selected == kNoButton || prefs.buttonActions[selected] == action)
        return;
    prefs.buttonActions[selected] = action;
    commitPaletteEdit();
}

void PreferenceWrangler::removePaletteButton(NSButton*) {
    const SInt32 selected = selectedSlot();
    if (selected == kNoButton)
        return;
    UInt8* const slots = prefs.buttonActions;
    std::copy(slots + selected + 1, slots + kNumPaletteSlots, slots + selected);
    slots[kLastSlot] = kEmptyAction;
    commitPaletteEdit();
}

void PreferenceWrangler::swapPaletteButtonWith(NSButton*) {
    firstBtnToSwap_ = selectedSlot();
    updatePaletteCtls();
    // Where the other button is chosen: by keyboard it would be four Tab stops back.
    paletteView_->window().makeFirstResponder(paletteView_);
}

void PreferenceWrangler::paletteBtnHit(PaletteView* view, SInt32 index) {
    if (firstBtnToSwap_ == kNoButton) {
        view->selectBtn(index);
        updatePaletteCtls();
        return;
    }
    if (index != kNoButton && index != firstBtnToSwap_) {
        std::swap(prefs.buttonActions[firstBtnToSwap_], prefs.buttonActions[index]);
        view->setNeedsDisplay(true);
        changed(kChangePalette);
    }
    resetPaletteControls();
}

void PreferenceWrangler::resetPaletteButtons(NSButton*) {
    std::copy(std::begin(defaultActions), std::end(defaultActions), prefs.buttonActions);
    commitPaletteEdit();
}

void PreferenceWrangler::updatePaletteCtls() {
    const bool hasSelection = selectedSlot() != kNoButton;
    const bool swapping = firstBtnToSwap_ != kNoButton;
    addButtonBtn_->setEnabled(!swapping && canAddPaletteBtn());
    setActionBtn_->setEnabled(hasSelection && !swapping);
    removeButtonBtn_->setEnabled(hasSelection && !swapping);
    swapWithBtn_->setEnabled(hasSelection);
    updatePalettePrompt();
}

void PreferenceWrangler::updatePalettePrompt() {
    const SInt32 selected = selectedSlot();
    if (firstBtnToSwap_ != kNoButton)
        palettePrompt_->setStringValue("Choose the button to swap with button " +
                                       paletteSlotName(firstBtnToSwap_) +
                                       ". The same button again, or Escape, cancels.");
    else if (selected != kNoButton)
        palettePrompt_->setStringValue("Chosen: button " + paletteSlotName(selected) + ".");
    else
        palettePrompt_->setStringValue("Choose a button to change it.");
}

void PreferenceWrangler::resetPaletteControls() {
    firstBtnToSwap_ = kNoButton;
    paletteView_->selectBtn(kNoButton);
    updatePaletteCtls();
}

void PreferenceWrangler::changedButtonShape(NSMatrix* sender) {
    prefs.buttonShape = static_cast<UInt32>(sender->selectedTag());
    changed(kChangePalette);
}

void PreferenceWrangler::loadButtonContent() {
    const auto show = [](NSButton* check, UInt32 bit) {
        check->setState(prefs.buttonContent & bit ? NSOnState : NSOffState);
    };
    show(buttonContentIconCheck_, kButtonContentIcon);
    show(buttonContentNameCheck_, kButtonContentName);
}

void PreferenceWrangler::setButtonContent(UInt32 bit, NSButton* sender) {
    if (sender->state() == NSOnState)
        prefs.buttonContent |= bit;
    else
        prefs.buttonContent &= ~bit;
    changed(kChangePalette);
}

void PreferenceWrangler::changedButtonContentName(NSButton* sender) {
    setButtonContent(kButtonContentName, sender);
}

void PreferenceWrangler::changedButtonContentIcon(NSButton* sender) {
    setButtonContent(kButtonContentIcon, sender);
}

void PreferenceWrangler::changedButtonSizes() {
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
    changed(kChangePalette);
}
