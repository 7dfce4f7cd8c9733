// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class NSButton;
class NSTextField;
class NumberController;

/// The controls that sliders and bumpers have in common; none is null or owned.
struct NumberControls {
    NSButton* dec;
    NSButton* inc;
    NSButton* pageDec; ///< many steps at once, as the next
    NSButton* pageInc;
    NSTextField* label; ///< the value, which can be typed
    const char* format; ///< of the label, see SettingLimits; empty: as a plain number

    /// Makes the buttons repeat while they are held down.
    void setAutoRepeat() const;

    /// Enables each button exactly when the controller's value can go that way, and lets each tell
    /// `shown`, the value in words, and what a press of it is worth.
    void update(const NumberController& controller, const std::string& shown) const;

    /// Says that what was typed isn't taken, and what would be: from the one value to the other.
    void refuse(double least, double most) const;

private:
    std::string text(double number) const;
};
