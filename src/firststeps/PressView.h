// SPDX-License-Identifier: MIT
#pragma once

#include "src/pane/switchview.h"

#include <string>

/// Is told when the view's answer changes.
class PressViewTarget {
public:
    virtual void answered() = 0;

protected:
    ~PressViewTarget() = default;
};

/// A field that answers presses: it is filled while one lasts, and counts them.
class PressView final : public SwitchView {
public:
    /// Not owned. Must be set before the view is shown.
    void setTarget(PressViewTarget* target) { target_ = target; }

    /// What it has seen so far, in the user's language.
    std::string words() const;

    void drawRect(const NSRect& dirtyRect) override;
    bool resignFirstResponder() override;

    std::string accessibilityTitle() const override { return accessibilityLabel(); }

    std::string accessibilityValue() const override { return words(); }

private:
    void pressed(double moment) override;
    void released(double moment) override;
    void acted(double moment) override;
    void escaped(NSEvent& event) override;
    void drawPrompt() const;
    void answer();

    PressViewTarget* target_ = nullptr;
    int presses_ = 0;
    bool isDown_ = false;
    double began_ = 0;  ///< on GetCurrentEventTime's clock
    double length_ = 0; ///< of the last press, in seconds; 0 if it has none
};
