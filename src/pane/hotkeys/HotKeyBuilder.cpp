// SPDX-License-Identifier: MIT
#include "src/pane/hotkeys/HotKeyBuilder.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/pane/hotkeys/HotKeyView.h"
#include "src/record/keyboardwords.h"

#include <array>

namespace {

std::array<std::pair<NSButton*, UInt32>, 4> modifiersOf(const HotKeyBuilder& builder) {
    return {{{builder.builderCommand, cmdKey},
             {builder.builderControl, controlKey},
             {builder.builderShift, shiftKey},
             {builder.builderOption, optionKey}}};
}

} // namespace

void HotKeyBuilder::setup(NSObject& menuTarget) {
    menuTarget_ = &menuTarget;
    builderKey->setDelegate(this);
}

/// The layout may have changed.
void HotKeyBuilder::menuNeedsUpdate(NSPopUpButton*) {
    builderKey->removeAllItems();
    for (const auto& [name, code] : keysByName(KeyboardLayout())) {
        builderKey->addItemWithTitle(name);
        NSMenuItem* item = builderKey->itemWithTitle(name);
        item->setTag(code);
        item->setTarget(menuTarget_);
        item->setAction(menuTarget_->selector("buildHotKey:"));
    }
}

void HotKeyBuilder::load() {
    view_ = nullptr;
    builderRow->setHidden(true);
}

void HotKeyBuilder::begin(HotKeyView& view) {
    view_ = &view;
    builderTitle->setStringValue(
        filled(localized("HotKeys", "New keys for “%1”"), {view.accessibilityLabel()}));
    for (const auto& [box, bit] : modifiersOf(*this))
        box->setState(view.modifiers() & bit ? NSOnState : NSOffState);
    builderRow->setHidden(false);
    builderCommand->window().makeFirstResponder(builderCommand);
}

void HotKeyBuilder::take(const NSMenuItem& key) {
    if (!view_)
        return;
    UInt32 modifiers = 0;
    for (const auto& [box, bit] : modifiersOf(*this))
        modifiers |= box->state() == NSOnState ? bit : 0;
    view_->setHotKey(modifiers, static_cast<UInt16>(key.tag()));
}
