// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"

/// Hears of each answer of the view.
class PressViewTarget {
public:
    virtual void answered() = 0;

protected:
    ~PressViewTarget() = default;
};

/// A field that answers presses: it is filled while one lasts, and counts them. Any key but Tab and
/// Escape, any mouse button and the accessibility action are presses.
class PressView final : public NSView, public NSAccessibilityButton {
public:
    /// Not owned; not null once the view is shown.
    void setTarget(PressViewTarget* target) { target_ = target; }

    /// What it has seen so far, in the user's language.
    std::string words() const;

    void drawRect(const NSRect& dirtyRect) override;
    void mouseDown(NSEvent* event) override;
    void mouseUp(NSEvent* event) override;
    void otherMouseDown(NSEvent* event) override;
    void otherMouseUp(NSEvent* event) override;
    void keyDown(NSEvent* event) override;
    void keyUp(NSEvent* event) override;
    bool resignFirstResponder() override;

    bool acceptsFirstResponder() const override { return true; }

    std::string accessibilityTitle() const override { return accessibilityLabel(); }

    std::string accessibilityValue() const override { return words(); }

    void accessibilityPerformPress() override;

private:
    void drawPrompt() const;
    void begin(double moment);
    void end(double moment);
    void answer();

    PressViewTarget* target_ = nullptr;
    int presses_ = 0;
    bool isDown_ = false;
    double began_ = 0;  ///< of GetCurrentEventTime's clock
    double length_ = 0; ///< of the last press, in seconds; 0 for one that has none
};
