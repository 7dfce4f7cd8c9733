// SPDX-License-Identifier: MIT
#include "src/firststeps/PressView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/CoreFoundation/Localization.h"

#include <algorithm>
#include <cstdio>

REGISTER_CLASS(PressView);

namespace {

constexpr double kShortestTold = 0.05; ///< seconds
constexpr double kHeldFor = 30;        ///< seconds without a press

std::string countText(int presses) {
    if (presses == 0)
        return localized("FirstSteps",
                         "Press your switch, any key, or a mouse button in this field. "
                         "It is filled while you press.");
    return presses == 1 ? localized("FirstSteps", "It answers: 1 press.")
                        : localized("FirstSteps", "It answers: %n presses.", "", presses);
}

} // namespace

std::string PressView::words() const {
    if (isDown_)
        return localized("FirstSteps", "Pressed.");
    const std::string count = countText(presses_);
    if (length_ < kShortestTold)
        return count;
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", length_);
    return filled(localized("FirstSteps", "%1 The last one took %2 seconds.",
                            "%1 is a sentence: It answers: 3 presses."),
                  {count, localizedNumbers(text)});
}

PressView::~PressView() {
    freeKeys();
}

void PressView::holdKeys() {
    agent_.set(true);
    if (quiet_)
        RemoveEventLoopTimer(quiet_);
    InstallEventLoopTimer(GetMainEventLoop(), kHeldFor, 0,
                          NewEventLoopTimerUPP([](EventLoopTimerRef, void* self) {
                              static_cast<PressView*>(self)->freeKeys();
                          }),
                          this, &quiet_);
}

void PressView::freeKeys() {
    agent_.set(false);
    if (quiet_)
        RemoveEventLoopTimer(quiet_);
    quiet_ = nullptr;
}

void PressView::answer() {
    if (isFirstResponder())
        holdKeys();
    setNeedsDisplay(true);
    target_->answered();
}

void PressView::pressed(double moment) {
    if (isDown_)
        return;
    isDown_ = true;
    began_ = moment;
    answer();
}

void PressView::released(double moment) {
    if (!isDown_)
        return;
    isDown_ = false;
    ++presses_;
    length_ = moment - began_;
    answer();
}

void PressView::drawRect(const NSRect&) {
    NSEraseRect(bounds());
    NSColor::keyboardFocusIndicatorColor().set();
    if (isDown_)
        NSRectFill(bounds());
    else
        drawPrompt();
    drawFrame();
}

void PressView::drawPrompt() const {
    const auto text = createFromUTF8(localized("FirstSteps", "Press here"));
    const TextAttributes look{NSFont::systemFontOfSize(0)};
    const NSSize size = sizeWithAttributes(text.get(), look);
    const float width = std::min(size.width + 1, bounds().width);
    NSDrawString(text.get(), {(bounds().width - width) / 2, 0, width, bounds().height}, look);
}

void PressView::escaped(NSEvent& event) {
    event.passOn();
}

bool PressView::becomeFirstResponder() {
    holdKeys();
    return true;
}

// The release will go elsewhere.
bool PressView::resignFirstResponder() {
    freeKeys();
    isDown_ = false;
    setNeedsDisplay(true);
    return true;
}

void PressView::acted(double) {
    ++presses_;
    length_ = 0;
    answer();
}
