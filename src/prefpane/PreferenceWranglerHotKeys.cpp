#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/prefpane/HotKeyView.h"

namespace {

/// Whether both are assigned and the agent would take one for the other.
bool isSameHotKey(const HotKey& a, const HotKey& b) {
    constexpr UInt32 kModifiers = cmdKey | shiftKey | optionKey | controlKey;
    return a.keyCode >= 0 && a.keyCode == b.keyCode &&
           ((a.modifiers ^ b.modifiers) & kModifiers) == 0;
}

} // namespace

std::array<PreferenceWrangler::HotKeyRow, kNumHotKeys> PreferenceWrangler::hotKeyRows() const {
    return {{{masterOnOffKey_, masterOnOffKeyBtn_, masterOnOffKeyNote_},
             {scanKey_, scanKeyBtn_, scanKeyNote_},
             {cancelScanKey_, cancelScanKeyBtn_, cancelScanKeyNote_},
             {showPreferencesKey_, showPreferencesKeyBtn_, showPreferencesKeyNote_},
             {scanKey2_, scanKey2Btn_, scanKey2Note_}}};
}

void PreferenceWrangler::setupHotKeys() {
    static constexpr struct {
        const char* title;
        std::string_view action;
    } kItems[] = {
        {"Press new keys", "captureHotKey:"},
        {"None", "removeHotKey:"},
        {"Default", "resetHotKey:"},
    };

    int index = 0;
    for (const HotKeyRow& row : hotKeyRows()) {
        row.view->setWrangler(this);
        row.view->setIndex(index);
        for (const auto& [title, action] : kItems) {
            row.menu->addItemWithTitle(title);
            NSMenuItem* item = row.menu->itemWithTitle(title);
            item->setTag(index);
            item->setTarget(this);
            item->setAction(selector(action));
        }
        ++index;
    }
}

void PreferenceWrangler::loadHotKeys() {
    targetHotKey_ = nullptr;
    updateHotKeyUI();
    for (const HotKeyRow& row : hotKeyRows())
        row.view->setNeedsDisplay(true);
    updateHotKeyNotes();
}

void PreferenceWrangler::setHotKeyToNone(NSButton*) {
    if (targetHotKey_)
        targetHotKey_->setToNone();
}

void PreferenceWrangler::setHotKeyToDefault(NSButton*) {
    if (targetHotKey_)
        targetHotKey_->setToDefault();
}

void PreferenceWrangler::cancelHotKeyEdit(NSButton*) {
    if (targetHotKey_)
        targetHotKey_->cancelEditing();
}

void PreferenceWrangler::captureHotKey(NSMenuItem* sender) {
    const HotKeyRow row = hotKeyRows()[static_cast<std::size_t>(sender->tag())];
    row.view->startEditing(row.menu);
}

void PreferenceWrangler::removeHotKey(NSMenuItem* sender) {
    hotKeyRows()[static_cast<std::size_t>(sender->tag())].view->setToNone();
}

void PreferenceWrangler::resetHotKey(NSMenuItem* sender) {
    hotKeyRows()[static_cast<std::size_t>(sender->tag())].view->setToDefault();
}

void PreferenceWrangler::setTargetHotKey(HotKeyView* view) {
    if (view == targetHotKey_)
        return;
    targetHotKey_ = view;
    updateHotKeyUI();
}

// The idle prompt and the editing group take each other's place in one container.
void PreferenceWrangler::updateHotKeyUI() {
    NSView* const editing[] = {editingKeyPrompt1_, cancelEditBtn_, defaultKeyBtn_, noKeyBtn_};
    if (targetHotKey_) {
        NSView* container = notEditingKeyPrompt_->superview();
        if (!container)
            return;
        notEditingKeyPrompt_->removeFromSuperview();
        if (editingKeyPrompt1_->superview())
            return;
        for (NSView* view : editing)
            container->addSubview(view);
    } else {
        NSView* container = editingKeyPrompt1_->superview();
        if (!container)
            return;
        for (NSView* view : editing)
            view->removeFromSuperview();
        if (!notEditingKeyPrompt_->superview())
            container->addSubview(notEditingKeyPrompt_);
    }
}

/// Says beside each hot key which others are the same: nothing keeps a user from that, but the
/// agent can't tell them apart.
void PreferenceWrangler::updateHotKeyNotes() {
    const auto rows = hotKeyRows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::string note;
        for (std::size_t other = 0; other < rows.size(); ++other)
            if (other != i && isSameHotKey(prefs.hotKeys[i], prefs.hotKeys[other]))
                note += (note.empty() ? "The same keys as “" : ", “") +
                        rows[other].view->accessibilityLabel() + "”";
        rows[i].note->setStringValue(note);
        const auto combination = rows[i].view->combination();
        rows[i].menu->setAccessibilityHelp(
            (combination ? "Now " + CFStringToUTF8(combination.get()) + ". " : std::string()) +
            note);
    }
}
