// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "src/scan/switchevent.h"

/// A view that takes every input a switch can send: any key but Tab and Escape, any mouse button,
/// and the accessibility action. While it has the focus it also takes what a desktop's shortcuts
/// tell of the switch. A key that is held down is one press. Moments are those of the events, in
/// seconds on GetCurrentEventTime's clock.
class SwitchView : public NSView, public NSAccessibilityButton {
public:
    SwitchView();
    ~SwitchView() override;
    SwitchView(const SwitchView&) = delete;
    SwitchView& operator=(const SwitchView&) = delete;

    void mouseDown(NSEvent* event) override;
    void mouseUp(NSEvent* event) override;
    void otherMouseDown(NSEvent* event) override;
    void otherMouseUp(NSEvent* event) override;
    void keyDown(NSEvent* event) override;
    void keyUp(NSEvent* event) override;
    void accessibilityPerformPress() override;

    bool acceptsFirstResponder() const override { return true; }

protected:
    virtual void pressed(double moment) = 0;
    virtual void released(double moment) = 0;
    /// Assistive technology made a press, which has no length.
    virtual void acted(double moment) = 0;
    virtual void escaped(NSEvent& event) = 0;

    /// In the current colour; wider while the view has the focus.
    void drawFrame() const;

private:
    static OSErr takeShortcut(const AppleEvent* event, AppleEvent* reply, void* refCon);
};
