// SPDX-License-Identifier: MIT
#include "src/pane/hotkeys/HotKeyEditor.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/HIToolbox/HotKeyMode.h"
#include "src/pane/hotkeys/HotKeyView.h"
#include "src/record/keyboardwords.h"

#include <algorithm>
#include <cctype>

namespace {

/// Seconds that a capture can keep keys from other programs.
constexpr int kCaptureSeconds = 30;

constexpr const char* kClaim = LOCALIZABLE("HotKeys", "Use these keys only here");
constexpr const char* kRestore = LOCALIZABLE("HotKeys", "Undo the change here");

/// What the keyboard says, where that isn't the name that is shown. Empty where it is.
std::string wordsBeside(const HotKeyView& view, const KeyboardLayout& layout) {
    const auto plain = [](std::string text) {
        std::erase(text, ' ');
        std::ranges::transform(text, text.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return text;
    };
    const auto name = view.combination();
    std::string words = keyboardWords(layout, view.modifiers(), view.keyCode());
    return !name || plain(toUTF8(name.get())) == plain(words) ? "" : words;
}

/// Whether both are assigned and the agent can't tell them apart.
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

void HotKeyEditor::setup(NSObject& menuTarget) {
    static constexpr struct {
        const char* title;
        std::string_view action;
    } kItems[] = {
        {LOCALIZABLE("HotKeys", "Press new keys"), "captureHotKey:"},
        {LOCALIZABLE("HotKeys", "Choose keys…"), "chooseHotKey:"},
        {LOCALIZABLE("HotKeys", "None"), "removeHotKey:"},
        {LOCALIZABLE("HotKeys", "Reset"), "resetHotKey:"},
        {kClaim, "claimHotKey:"},
        {kRestore, "restoreHotKey:"},
    };

    menuTarget_ = &menuTarget;
    builder.setup(menuTarget);
    int index = 0;
    for (const HotKeyRow* row : rows()) {
        row->view->setTarget(this);
        row->view->setIndex(index);
        for (const auto& [text, action] : kItems) {
            const std::string title = localized("HotKeys", text);
            row->menu->addItemWithTitle(title);
            NSMenuItem* item = row->menu->itemWithTitle(title);
            item->setTag(index);
            item->setTarget(&menuTarget);
            item->setAction(menuTarget.selector(action));
        }
        ++index;
    }
}

HotKeyEditor::~HotKeyEditor() {
    stopCountingDown();
}

void HotKeyEditor::load() {
    cancelHotKeyEdit();
    updateHotKeyUI(); // at first both groups are there
    builder.load();
    std::copy(std::begin(prefs.hotKeys), std::end(prefs.hotKeys), now_.begin());
    before_ = now_;
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

void HotKeyEditor::chooseHotKey(const NSMenuItem& sender) {
    builder.begin(*rowOf(sender).view);
}

void HotKeyEditor::claimHotKey(const NSMenuItem& sender) {
    for (const std::size_t other : sameAs(static_cast<std::size_t>(sender.tag())))
        rows()[other]->view->unassign();
    changed(kChangeHotKeys);
}

void HotKeyEditor::restoreHotKey(const NSMenuItem& sender) {
    rowOf(sender).view->restore(before_[static_cast<std::size_t>(sender.tag())]);
}

void HotKeyEditor::setTargetHotKey(HotKeyView* view) {
    if (view == targetHotKey_)
        return;
    targetHotKey_ = view;
    updateHotKeyUI();
    stopCountingDown();
    secondsLeft_ = kCaptureSeconds;
    if (view)
        countDown();
    else
        agent_.set(false);
}

void HotKeyEditor::stopCountingDown() {
    if (timer_)
        RemoveEventLoopTimer(timer_);
    timer_ = nullptr;
}

void HotKeyEditor::countDown() {
    stopCountingDown();
    const bool isActive = targetHotKey_->window().isKeyWindow();
    agent_.set(isActive);
    if (!isActive)
        secondsLeft_ = kCaptureSeconds;
    else if (secondsLeft_ == 0)
        return cancelHotKeyEdit();
    std::string prompt = filled(
        localized("HotKeys", "Listening: press the new hot key, one key, alone or with Ctrl, "
                             "Alt, Shift or Super held down. Every key counts, Esc and Tab "
                             "too. Seconds left: %1."),
        {std::to_string(secondsLeft_)});
    if (desktopKeepsItsShortcuts())
        prompt += "\n" + localized("HotKeys", "Keys that this desktop uses itself aren’t heard "
                                              "here. “Choose keys…” in the menu has them too.");
    editingKeyPrompt1->setStringValue(prompt);
    secondsLeft_ -= isActive ? 1 : 0;
    const auto tick = [](EventLoopTimerRef, void* editor) {
        static_cast<HotKeyEditor*>(editor)->countDown();
    };
    InstallEventLoopTimer(GetMainEventLoop(), 1.0, 0, NewEventLoopTimerUPP(tick), this, &timer_);
}

// The idle prompt and the editing group alternate in one container.
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

std::vector<std::size_t> HotKeyEditor::sameAs(std::size_t index) const {
    std::vector<std::size_t> same;
    for (std::size_t other = 0; other < kNumHotKeys; ++other)
        if (other != index && isSameHotKey(prefs.hotKeys[index], prefs.hotKeys[other]))
            same.push_back(other);
    return same;
}

void HotKeyEditor::noticeChanges() {
    for (std::size_t i = 0; i < kNumHotKeys; ++i) {
        const HotKey& now = prefs.hotKeys[i];
        if (now.keyCode == now_[i].keyCode && now.modifiers == now_[i].modifiers)
            continue;
        before_[i] = now_[i];
        now_[i] = now;
    }
}

void HotKeyEditor::updateHotKeyNotes() {
    noticeChanges();
    const KeyboardLayout layout;
    const auto all = rows();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string same = sameKeysText(i);
        const std::string words = wordsBeside(*all[i]->view, layout);
        const std::string here =
            words.empty() ? "" : filled(localized("HotKeys", "%1 on your keyboard"), {words});
        all[i]->note->setStringValue(joined(Joint::Value, {here, same}));
        for (const char* offer : {kClaim, kRestore})
            all[i]
                ->menu->itemWithTitle(localized("HotKeys", offer))
                ->setTarget(same.empty() ? nullptr : menuTarget_);
        const auto name = all[i]->view->combination();
        const std::string now = joined(Joint::Note, {name ? toUTF8(name.get()) : "", here});
        all[i]->menu->setAccessibilityHelp(
            joined(Joint::Sentences,
                   {now.empty() ? now : filled(localized("HotKeys", "Now %1."), {now}), same}));
    }
}

/// Which others are the same. Empty for none.
std::string HotKeyEditor::sameKeysText(std::size_t index) {
    std::vector<std::string> names;
    for (const std::size_t other : sameAs(index))
        names.push_back(
            filled(localized("HotKeys", "“%1”"), {rows()[other]->view->accessibilityLabel()}));
    return names.empty()
               ? ""
               : filled(localized("HotKeys", "⚠ The same keys as %1. The menu beside it offers to "
                                             "use them only here, or to undo the change."),
                        {joined(Joint::Items, names)});
}
