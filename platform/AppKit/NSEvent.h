#pragma once

#include "platform/AppKit/NSGeometry.h"

// Characters that stand for keys without a letter, in the Unicode private use area as on the
// platform.
constexpr char16_t NSUpArrowFunctionKey = 0xF700;
constexpr char16_t NSDownArrowFunctionKey = 0xF701;
constexpr char16_t NSLeftArrowFunctionKey = 0xF702;
constexpr char16_t NSRightArrowFunctionKey = 0xF703;
constexpr char16_t NSHomeFunctionKey = 0xF729;
constexpr char16_t NSEndFunctionKey = 0xF72B;
constexpr char16_t NSCarriageReturnCharacter = 0x000D;
constexpr char16_t NSEnterCharacter = 0x0003; ///< of the keypad
constexpr char16_t NSEscapeCharacter = 0x001B;

/// A press of the mouse's left button or of a key, on its way to a view.
class NSEvent {
public:
    static NSEvent mouseDown(NSPoint locationInWindow) { return {locationInWindow, 0}; }

    static NSEvent keyDown(char16_t character) { return {{}, character}; }

    /// Of the mouse; y grows downward.
    NSPoint locationInWindow() const { return locationInWindow_; }

    /// Of the key, one of the constants above or a letter; 0 for a key that has neither.
    char16_t charactersIgnoringModifiers() const { return character_; }

    /// A view that has no use for the event gives it back to those around it.
    void passOn() { passedOn_ = true; }

    bool isPassedOn() const { return passedOn_; }

private:
    NSEvent(NSPoint locationInWindow, char16_t character)
        : locationInWindow_(locationInWindow), character_(character) {}

    NSPoint locationInWindow_;
    char16_t character_;
    bool passedOn_ = false;
};
