// SPDX-License-Identifier: MIT
#include "src/controls/ChoiceGrid.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/HIToolbox/Appearance.h"

#include <algorithm>

REGISTER_CLASS(ChoiceGrid);

namespace {

constexpr int kColumns = 6;
constexpr int kSide = 44; ///< of a button, in points; enough for a trembling hand
constexpr int kGap = 6;
constexpr float kRoomAroundText = 20; ///< above and below it, together
constexpr float kLeastListWidth = 200;
constexpr float kNameHeight = 28; ///< of a line of text, at 200 % too

struct Choice {
    const ChoiceGridSource& source;
    int index;
};

void drawChoice(const Rect* bounds, ThemeButtonKind, const ThemeButtonDrawInfo*, void* userData) {
    const auto& [source, index] = *static_cast<const Choice*>(userData);
    source.drawChoice(index, *bounds);
}

Rect rectOf(const NSRect& frame) {
    return {static_cast<SInt16>(frame.y), static_cast<SInt16>(frame.x),
            static_cast<SInt16>(frame.y + frame.height),
            static_cast<SInt16>(frame.x + frame.width)};
}

} // namespace

int ChoiceGrid::columns() const {
    return source_->isList() ? 1 : kColumns;
}

/// A row of text is as high as its text needs.
NSSize ChoiceGrid::choiceSize() const {
    if (!source_->isList())
        return {kSide, kSide};
    const float text = sizeWithAttributes(CFSTR("X"), {NSFont::systemFontOfSize(0)}).height;
    return {bounds().width, std::max(static_cast<float>(kSide), text + kRoomAroundText)};
}

NSRect ChoiceGrid::frameOf(int index) const {
    const auto [width, height] = choiceSize();
    return {static_cast<float>(index % columns()) * (width + kGap),
            static_cast<float>(index / columns()) * (height + kGap), width, height};
}

void ChoiceGrid::reload() {
    const int old = chosen_;
    count_ = source_ ? source_->choiceCount() : 0;
    cursor_ = std::clamp(cursor_, 0, std::max(count_ - 1, 0));
    chosen_ = -1;
    for (int i = count_ - 1; i >= 0; --i)
        if (source_->isChosen(i))
            chosen_ = i;
    if (chosen_ >= 0 && !isFirstResponder())
        cursor_ = chosen_; // the keyboard begins there
    if (source_) {
        const int rows = (count_ + columns() - 1) / columns();
        const float width = source_->isList() ? kLeastListWidth : kColumns * (kSide + kGap) - kGap;
        const float height =
            std::max(static_cast<float>(rows) * (choiceSize().height + kGap) - kGap, 0.F);
        const bool hasName = !source_->isList() && count_ > 0;
        setFrameSize({width, hasName ? height + kNameHeight : height});
    }
    setNeedsDisplay(true);
    for (const int changed : {old, chosen_})
        if (old != chosen_)
            NSAccessibilityPostNotification(this, changed,
                                            NSAccessibilitySelectedChildrenChangedNotification);
}

void ChoiceGrid::drawRect(const NSRect&) {
    for (int i = 0; i < count_; ++i) {
        const Rect frame = rectOf(frameOf(i));
        const ThemeButtonDrawInfo info{kThemeStateActive,
                                       source_->isChosen(i) ? kThemeButtonOn : kThemeButtonOff,
                                       kThemeAdornmentNone};
        Choice choice{*source_, i};
        DrawThemeButton(&frame, kThemeRoundedBevelButton, &info, nullptr, nullptr, ::drawChoice,
                        &choice);
        DrawThemeFocusRect(&frame, i == cursor_ && isFirstResponder());
    }
    drawName();
}

/// Beneath the pictures, of the one where the keyboard is, else of the chosen one. Nothing in a
/// list, whose rows are names.
void ChoiceGrid::drawName() const {
    const int named = isFirstResponder() ? cursor_ : chosen_;
    if (count_ == 0 || named < 0 || source_->isList())
        return;
    const NSRect last = frameOf(count_ - 1);
    NSDrawString(createFromUTF8(source_->choiceName(named)).get(),
                 {0, last.y + last.height, bounds().width, kNameHeight},
                 {NSFont::systemFontOfSize(0)});
}

void ChoiceGrid::mouseDown(NSEvent* event) {
    const NSPoint place = convertPoint(event->locationInWindow(), nullptr);
    for (int i = 0; i < count_; ++i)
        if (NSPointInRect(place, frameOf(i)))
            return accessibilityPress(i);
}

void ChoiceGrid::moveCursor(int index) {
    if (index < 0 || index >= count_ || index == cursor_)
        return;
    cursor_ = index;
    setNeedsDisplay(true);
    NSAccessibilityPostNotification(this, cursor_,
                                    NSAccessibilityFocusedUIElementChangedNotification);
}

void ChoiceGrid::keyDown(NSEvent* event) {
    switch (event->charactersIgnoringModifiers()) {
    case NSLeftArrowFunctionKey:
        return moveCursor(cursor_ - 1);
    case NSRightArrowFunctionKey:
        return moveCursor(cursor_ + 1);
    case NSUpArrowFunctionKey:
        return moveCursor(cursor_ - columns());
    case NSDownArrowFunctionKey:
        return moveCursor(cursor_ + columns());
    case NSHomeFunctionKey:
        return moveCursor(0);
    case NSEndFunctionKey:
        return moveCursor(count_ - 1);
    case u' ':
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
        if (!event->isARepeat()) // a key that is held down clicks once
            accessibilityPress(cursor_);
        return;
    default:
        event->passOn();
    }
}

NSAccessibilityElement ChoiceGrid::accessibilityElement(int index) const {
    return {source_->choiceName(index), frameOf(index), source_->isChosen(index)};
}

void ChoiceGrid::accessibilityPress(int index) {
    if (index >= count_)
        return;
    moveCursor(index);
    source_->choose(index);
    reload();
}
