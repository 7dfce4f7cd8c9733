#include "src/prefpane/HotKeyEditor.h"

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

std::array<HotKeyRow*, kNumHotKeys> HotKeyEditor::rows() {
    return {&masterOnOff, &scan, &cancelScan, &showPreferences, &scan2};
}

HotKeyRow& HotKeyEditor::rowOf(const NSMenuItem& item) {
    return *rows()[static_cast<std::size_t>(item.tag())];
}

void HotKeyEditor::setup(HotKeyViewTarget& viewTarget, NSObject& menuTarget) {
    static constexpr struct {
        const char* title;
        std::string_view action;
    } kItems[] = {
        {"Press new keys", "captureHotKey:"},
        {"None", "removeHotKey:"},
        {"Default", "resetHotKey:"},
    };

    int index = 0;
    for (const HotKeyRow* row : rows()) {
        row->view->setTarget(&viewTarget);
        row->view->setIndex(index);
        for (const auto& [title, action] : kItems) {
            row->menu->addItemWithTitle(title);
            NSMenuItem* item = row->menu->itemWithTitle(title);
            item->setTag(index);
            item->setTarget(&menuTarget);
            item->setAction(menuTarget.selector(action));
        }
        ++index;
    }
}

void HotKeyEditor::load() {
    targetHotKey_ = nullptr;
    updateHotKeyUI();
    for (const HotKeyRow* row : rows())
        row->view->setNeedsDisplay(true);
    updateHotKeyNotes();
}

void HotKeyEditor::setHotKeyToNone() {
    if (targetHotKey_)
        targetHotKey_->setToNone();
}

void HotKeyEditor::setHotKeyToDefault() {
    if (targetHotKey_)
        targetHotKey_->setToDefault();
}

void HotKeyEditor::cancelHotKeyEdit() {
    if (targetHotKey_)
        targetHotKey_->cancelEditing();
}

void HotKeyEditor::captureHotKey(const NSMenuItem& sender) {
    const HotKeyRow& row = rowOf(sender);
    row.view->startEditing(row.menu);
}

void HotKeyEditor::removeHotKey(const NSMenuItem& sender) {
    rowOf(sender).view->setToNone();
}

void HotKeyEditor::resetHotKey(const NSMenuItem& sender) {
    rowOf(sender).view->setToDefault();
}

void HotKeyEditor::setTargetHotKey(HotKeyView* view) {
    if (view == targetHotKey_)
        return;
    targetHotKey_ = view;
    updateHotKeyUI();
}

// The idle prompt and the editing group take each other's place in one container.
void HotKeyEditor::updateHotKeyUI() {
    NSView* const editing[] = {editingKeyPrompt1, cancelEditBtn, defaultKeyBtn, noKeyBtn};
    if (targetHotKey_) {
        NSView* container = notEditingKeyPrompt->superview();
        if (!container)
            return;
        notEditingKeyPrompt->removeFromSuperview();
        if (editingKeyPrompt1->superview())
            return;
        for (NSView* view : editing)
            container->addSubview(view);
    } else {
        NSView* container = editingKeyPrompt1->superview();
        if (!container)
            return;
        for (NSView* view : editing)
            view->removeFromSuperview();
        if (!notEditingKeyPrompt->superview())
            container->addSubview(notEditingKeyPrompt);
    }
}

void HotKeyEditor::updateHotKeyNotes() {
    const auto all = rows();
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::string note;
        for (std::size_t other = 0; other < all.size(); ++other)
            if (other != i && isSameHotKey(prefs.hotKeys[i], prefs.hotKeys[other]))
                note += (note.empty() ? "The same keys as “" : ", “") +
                        all[other]->view->accessibilityLabel() + "”";
        all[i]->note->setStringValue(note);
        const auto combination = all[i]->view->combination();
        all[i]->menu->setAccessibilityHelp(
            (combination ? "Now " + CFStringToUTF8(combination.get()) + ". " : std::string()) +
            note);
    }
}
