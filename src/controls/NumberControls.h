// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class NSButton;
class NSTextField;
class NumberController;

/// The common controls of sliders and bumpers. None is null or owned.
struct NumberControls {
    NSButton* dec;
    NSButton* inc;
    NSButton* pageDec; ///< many steps at once, like the next
    NSButton* pageInc;
    NSTextField* label; ///< the value; it can be typed
    const char* format; ///< the label's, see SettingLimits; empty: plain number

    /// Makes the buttons repeat while they are held down.
    void setAutoRepeat() const;

    /// Enables each button if the value can go that way. Each button's description gets `shown`,
    /// the value in words, and the step of a press.
    void update(const NumberController& controller, const std::string& shown) const;

    /// Says that the typed value isn't accepted, and which limits hold.
    void refuse(double least, double most) const;

private:
    std::string text(double number) const;
};
