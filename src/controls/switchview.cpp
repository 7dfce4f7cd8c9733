// SPDX-License-Identifier: MIT
#include "src/controls/switchview.h"

#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/HIToolbox/EventTimers.h"

namespace {

constexpr float kFrameWidth = 1, kFocusedFrameWidth = 3; ///< points

} // namespace

void SwitchView::mouseDown(NSEvent* event) {
    pressed(event->timestamp());
}

void SwitchView::mouseUp(NSEvent* event) {
    released(event->timestamp());
}

void SwitchView::otherMouseDown(NSEvent* event) {
    pressed(event->timestamp());
}

void SwitchView::otherMouseUp(NSEvent* event) {
    released(event->timestamp());
}

void SwitchView::keyDown(NSEvent* event) {
    if (event->charactersIgnoringModifiers() == NSEscapeCharacter)
        escaped(*event);
    else if (!event->isARepeat())
        pressed(event->timestamp());
}

void SwitchView::keyUp(NSEvent* event) {
    if (!event->isARepeat())
        released(event->timestamp());
}

void SwitchView::accessibilityPerformPress() {
    acted(GetCurrentEventTime());
}

void SwitchView::drawFrame() const {
    NSFrameRectWithWidth(bounds(), isFirstResponder() ? kFocusedFrameWidth : kFrameWidth);
}
