// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/EventTimers.h"
#include "src/controls/switchview.h"
#include "src/link/Daemon.h"

#include <string>

/// Is told when the view's answer changes.
class PressViewTarget {
public:
    virtual void answered() = 0;

protected:
    ~PressViewTarget() = default;
};

/// A field that answers presses: it is filled while one lasts, and counts them. While it has the
/// focus the agent lets go of the keys, until half a minute after the last press: whoever has one
/// switch must get away from here.
class PressView final : public SwitchView {
public:
    ~PressView() override;

    /// Not owned. Must be set before the view is shown.
    void setTarget(PressViewTarget* target) { target_ = target; }

    int presses() const { return presses_; }

    /// What it has seen so far, in the user's language.
    std::string words() const;

    void drawRect(const NSRect& dirtyRect) override;
    bool becomeFirstResponder() override;
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
    void holdKeys();
    void freeKeys();

    PressViewTarget* target_ = nullptr;
    AgentHold agent_;
    EventLoopTimerRef quiet_ = nullptr; ///< while the keys are held
    int presses_ = 0;
    bool isDown_ = false;
    double began_ = 0;  ///< on GetCurrentEventTime's clock
    double length_ = 0; ///< of the last press, in seconds; 0 if it has none
};
