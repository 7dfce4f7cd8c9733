// SPDX-License-Identifier: MIT
#include "src/pane/palette/PaletteView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/Appearance.h"
#include "src/scan/palutil.h"
#include "src/store/prefs.h"

#include <algorithm>
#include <cmath>

REGISTER_CLASS(PaletteView);

namespace {

bool isSlot(SInt32 index) {
    return index >= 0 && index < kNumPaletteSlots;
}

Rect truncated(const NSRect& frame) {
    return {static_cast<SInt16>(frame.y), static_cast<SInt16>(frame.x),
            static_cast<SInt16>(frame.y + frame.height),
            static_cast<SInt16>(frame.x + frame.width)};
}

} // namespace

std::string paletteSlotName(SInt32 index) {
    if (!isSlot(index))
        return {};
    return filled(localized("Palette", "%1, %2", "number and name of a button"),
                  {std::to_string(index + 1), palutilActionName(prefs.buttonActions[index])});
}

void PaletteView::selectBtn(SInt32 index) {
    const SInt32 old = selectedBtn_;
    redrawBtn(old);
    selectedBtn_ = index;
    redrawBtn(index);
    if (index == old)
        return;
    for (const SInt32 changed : {old, index})
        NSAccessibilityPostNotification(this, changed,
                                        NSAccessibilitySelectedChildrenChangedNotification);
}

NSRect PaletteView::boundsOfBtn(SInt32 index) const {
    if (!isSlot(index))
        return {};
    NSRect frame = btn0Frame_;
    frame.x += static_cast<float>(index) * (frame.width + btnGap_);
    return frame;
}

void PaletteView::redrawBtn(SInt32 index) {
    if (index != kNoButton)
        setNeedsDisplayInRect(boundsOfBtn(index));
}

void PaletteView::calcBtnPlacement() {
    const NSRect whole = bounds();
    btn0Frame_ = {0, 0, whole.height, whole.height};
    btnGap_ = std::trunc((whole.width - kNumPaletteSlots * whole.height) * 0.125F);
}

void PaletteView::drawBtn(SInt32 index) {
    const Rect frame = truncated(boundsOfBtn(index));
    palutilDrawBtnAs(prefs.buttonActions[index], index == selectedBtn_, frame, kButtonShapeRounded,
                     kButtonContentIcon | kButtonContentName);
    DrawThemeFocusRect(&frame, index == cursor_ && isFirstResponder());
}

void PaletteView::drawRect(const NSRect&) {
    calcBtnPlacement();
    for (SInt32 index = 0; index < kNumPaletteSlots; ++index)
        drawBtn(index);
}

SInt32 PaletteView::btnAt(NSPoint point) const {
    for (SInt32 index = 0; index < kNumPaletteSlots; ++index)
        if (NSPointInRect(point, boundsOfBtn(index)))
            return index;
    return kNoButton;
}

void PaletteView::hit(SInt32 index) {
    if (index != kNoButton)
        moveCursor(index);
    if (target_)
        target_->paletteBtnHit(this, index);
}

/// A key that is held down clicks once.
void PaletteView::pressed(const NSEvent& event, SInt32 index) {
    if (!event.isARepeat())
        hit(index);
}

void PaletteView::mouseDown(NSEvent* event) {
    hit(btnAt(convertPoint(event->locationInWindow(), nullptr)));
}

void PaletteView::moveCursor(SInt32 index) {
    const SInt32 old = cursor_;
    cursor_ = std::clamp<SInt32>(index, 0, kNumPaletteSlots - 1);
    if (cursor_ == old)
        return;
    redrawBtn(old);
    redrawBtn(cursor_);
    NSAccessibilityPostNotification(this, cursor_,
                                    NSAccessibilityFocusedUIElementChangedNotification);
}

void PaletteView::keyDown(NSEvent* event) {
    switch (event->charactersIgnoringModifiers()) {
    case NSLeftArrowFunctionKey:
        return moveCursor(cursor_ - 1);
    case NSRightArrowFunctionKey:
        return moveCursor(cursor_ + 1);
    case NSHomeFunctionKey:
        return moveCursor(0);
    case NSEndFunctionKey:
        return moveCursor(kNumPaletteSlots - 1);
    case u' ':
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
        return pressed(*event, cursor_);
    case NSEscapeCharacter:
        return pressed(*event, kNoButton);
    default:
        event->passOn();
    }
}

int PaletteView::accessibilityCount() const {
    return kNumPaletteSlots;
}

NSAccessibilityElement PaletteView::accessibilityElement(int index) const {
    return {paletteSlotName(index), boundsOfBtn(index), index == selectedBtn_};
}

void PaletteView::accessibilityPress(int index) {
    hit(index);
}
