// SPDX-License-Identifier: MIT
#include "src/pane/hotkeys/HotKeyBuilder.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/pane/hotkeys/HotKeyView.h"
#include "src/record/keycombo.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr UInt16 kKeyCount = 128;
constexpr UInt16 kOtherEnter = 0x34; // named like the keypad's; no key here sends it
constexpr UInt16 kFirstModifierKey = 0x36, kLastModifierKey = 0x3E; // which mean nothing alone

struct NamedKey {
    std::string name;
    UInt16 code;
};

/// Letters first, then keys that are called by words.
bool comesBefore(const NamedKey& a, const NamedKey& b) {
    return std::pair(a.name.size() > 1, a.name) < std::pair(b.name.size() > 1, b.name);
}

std::vector<NamedKey> namedKeys() {
    std::vector<NamedKey> keys;
    for (UInt16 code = 0; code < kKeyCount; ++code) {
        const auto text = createKeyComboString(0, code);
        std::string name = text ? toUTF8(text.get()) : std::string();
        name.erase(0, name.find_first_not_of(' '));
        if (!name.empty() && code != kOtherEnter &&
            (code < kFirstModifierKey || code > kLastModifierKey))
            keys.push_back({name, code});
    }
    std::sort(keys.begin(), keys.end(), comesBefore);
    return keys;
}

std::array<std::pair<NSButton*, UInt32>, 4> modifiersOf(const HotKeyBuilder& builder) {
    return {{{builder.builderCommand, cmdKey},
             {builder.builderControl, controlKey},
             {builder.builderShift, shiftKey},
             {builder.builderOption, optionKey}}};
}

} // namespace

void HotKeyBuilder::setup(NSObject& menuTarget) {
    for (const auto& [name, code] : namedKeys()) {
        builderKey->addItemWithTitle(name);
        NSMenuItem* item = builderKey->itemWithTitle(name);
        item->setTag(code);
        item->setTarget(&menuTarget);
        item->setAction(menuTarget.selector("buildHotKey:"));
    }
}

void HotKeyBuilder::enable(bool enabled) {
    for (const auto& [box, bit] : modifiersOf(*this))
        box->setEnabled(enabled);
    builderKey->setEnabled(enabled);
}

void HotKeyBuilder::load() {
    view_ = nullptr;
    builderTitle->setStringValue(
        localized("HotKeys", "First choose “Choose keys…” in the menu beside a hot key."));
    enable(false);
}

void HotKeyBuilder::begin(HotKeyView& view) {
    view_ = &view;
    builderTitle->setStringValue(
        filled(localized("HotKeys", "New keys for “%1”"), {view.accessibilityLabel()}));
    for (const auto& [box, bit] : modifiersOf(*this))
        box->setState(view.modifiers() & bit ? NSOnState : NSOffState);
    enable(true);
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
