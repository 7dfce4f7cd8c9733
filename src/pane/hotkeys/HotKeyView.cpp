// SPDX-License-Identifier: MIT
#include "src/pane/hotkeys/HotKeyView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSBezierPath.h"
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/HIToolbox/HotKeyMode.h"
#include "src/record/keycombo.h"

#include <utility>

REGISTER_CLASS(HotKeyView);

namespace {

constexpr UInt32 kStoredModifiers = cmdKey | shiftKey | optionKey | controlKey;
constexpr UInt32 kBlankModifiers = 0xFFFFFFFF; ///< of a hot key that isn't shown

UInt32 carbonModifiers(UInt32 flags) {
    static constexpr struct {
        UInt32 flag;
        UInt32 modifier;
    } kTable[] = {
        {NSCommandKeyMask, cmdKey},       {NSShiftKeyMask, shiftKey},
        {NSAlphaShiftKeyMask, alphaLock}, {NSAlternateKeyMask, optionKey},
        {NSControlKeyMask, controlKey},
    };

    UInt32 modifiers = 0;
    for (const auto& row : kTable)
        modifiers |= flags & row.flag ? row.modifier : 0;
    return modifiers;
}

} // namespace

HotKeyView::~HotKeyView() {
    PopSymbolicHotKeyMode(hotKeyMode_); // of a capture cut short by the window's end
}

void HotKeyView::setIndex(int index) {
    index_ = index;
    setNeedsDisplay(true);
}

void HotKeyView::mouseDown(NSEvent*) {
    window().makeFirstResponder(this);
}

bool HotKeyView::becomeFirstResponder() {
    hotKeyMode_ = PushSymbolicHotKeyMode(kHIHotKeyModeAllDisabled);
    target_->setTargetHotKey(this);
    redraw();
    return NSView::becomeFirstResponder();
}

bool HotKeyView::resignFirstResponder() {
    PopSymbolicHotKeyMode(std::exchange(hotKeyMode_, nullptr));
    starter_ = nullptr;
    target_->setTargetHotKey(nullptr);
    redraw();
    return NSView::resignFirstResponder();
}

void HotKeyView::startEditing(NSView* starter) {
    window().makeFirstResponder(this);
    starter_ = starter;
}

void HotKeyView::cancelEditing() {
    if (hotKeyMode_) // the focus may be elsewhere, where the window is inactive
        window().makeFirstResponder(starter_);
}

void HotKeyView::flagsChanged(NSEvent*) {
    redraw();
}

bool HotKeyView::performKeyEquivalent(NSEvent* event) {
    if (!isFirstResponder())
        return false;
    keyDown(event);
    return true;
}

// A hot key needs a key code. Keys that were already down, such as the one that started the
// capture, don't arrive here (HotKeyMode.h).
void HotKeyView::keyDown(NSEvent* event) {
    if (index_ < 0 || event->keyCode() == kNoKeyCode)
        return;
    setHotKey(carbonModifiers(event->modifierFlags()), event->keyCode());
}

void HotKeyView::setHotKey(UInt32 modifiers, UInt16 keyCode) {
    if (index_ < 0)
        return;
    prefs.hotKeys[index_].modifiers = modifiers & kStoredModifiers;
    prefs.hotKeys[index_].keyCode = keyCode;
    cancelEditing();
    reportChange();
}

UInt32 HotKeyView::modifiers() const {
    return index_ < 0 ? 0 : prefs.hotKeys[index_].modifiers;
}

void HotKeyView::unassign() {
    SInt32& keyCode = prefs.hotKeys[index_].keyCode;
    keyCode = static_cast<SInt32>(static_cast<UInt32>(keyCode) | kNoHotKeyBit);
    redraw();
}

SInt32 HotKeyView::keyCode() const {
    return index_ < 0 ? -1 : prefs.hotKeys[index_].keyCode;
}

void HotKeyView::setToNone() {
    if (index_ >= 0) {
        unassign();
        reportChange();
    }
    cancelEditing();
}

void HotKeyView::setToDefault() {
    if (index_ >= 0)
        restore(PrefsRecord().hotKeys[index_]);
    cancelEditing();
}

void HotKeyView::restore(const HotKey& hotKey) {
    prefs.hotKeys[index_] = hotKey;
    reportChange();
}

void HotKeyView::reportChange() {
    redraw();
    target_->changed(kChangeHotKeys);
}

void HotKeyView::redraw() {
    setNeedsDisplay(true);
    postValueChanged(*this);
}

CFRef<CFString> HotKeyView::combination() const {
    if (index_ < 0 || prefs.hotKeys[index_].modifiers == kBlankModifiers)
        return nullptr;
    const HotKey& hotKey = prefs.hotKeys[index_];
    return createKeyComboString(hotKey.modifiers, hotKey.keyCode);
}

CFRef<CFString> HotKeyView::text() const {
    return isFirstResponder() ? createKeyComboString(GetCurrentKeyModifiers(), kModifiersOnly)
                              : combination();
}

void HotKeyView::drawRect(const NSRect&) {
    constexpr float kRingInset = 0.5;
    constexpr float kRingWidth = 2.0;
    constexpr float kTextInset = 5.0;

    NSEraseRect(bounds());
    if (isFirstResponder()) {
        NSGraphicsContext::saveGraphicsState();
        NSColor::keyboardFocusIndicatorColor().set();
        NSBezierPath::setDefaultLineWidth(kRingWidth);
        NSBezierPath::strokeRect(NSInsetRect(bounds(), kRingInset, kRingInset));
        NSGraphicsContext::restoreGraphicsState();
    }
    if (const auto shown = text())
        NSDrawString(shown.get(), NSInsetRect(bounds(), kTextInset, 0),
                     {.font = NSFont::systemFontOfSize(0)});
}

std::string HotKeyView::accessibilityValue() const {
    const auto shown = text();
    return shown ? toUTF8(shown.get()) : std::string();
}

std::string HotKeyView::accessibilityStatus() const {
    return isFirstResponder() ? localized("HotKeys", "Capturing: press the new keys.") : "";
}
