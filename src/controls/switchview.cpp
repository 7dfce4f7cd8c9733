// SPDX-License-Identifier: MIT
#include "src/controls/switchview.h"

#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/HIToolbox/EventTimers.h"

#include <algorithm>
#include <vector>

namespace {

constexpr float kFrameWidth = 1, kFocusedFrameWidth = 3; ///< points

constexpr UInt32 kScanKey = 1, kSecondScanKey = 4; ///< of the record's hot keys

std::vector<SwitchView*> views; ///< all that there are

} // namespace

SwitchView::SwitchView() {
    if (views.empty())
        AEInstallEventHandler(kSwitchEventClass, kSwitchEventID, takeShortcut, nullptr);
    views.push_back(this);
}

SwitchView::~SwitchView() {
    std::erase(views, this);
    if (views.empty())
        AERemoveEventHandler(kSwitchEventClass, kSwitchEventID, takeShortcut);
}

OSErr SwitchView::takeShortcut(const AppleEvent* event, AppleEvent*, void*) {
    SwitchEvent told{};
    if (const OSErr error = readSwitchEvent(*event, told))
        return error;
    const auto focused = std::ranges::find_if(views, &SwitchView::isFirstResponder);
    if (focused == views.end() || (told.key != kScanKey && told.key != kSecondScanKey))
        return noErr;
    if (told.isDown)
        (*focused)->pressed(told.moment);
    else
        (*focused)->released(told.moment);
    return noErr;
}

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
