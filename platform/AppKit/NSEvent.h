// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/CoreFoundation/CFBase.h"
#include "platform/Support/ScanCodes.h"

// Characters for keys without a letter. They are in the Unicode private use area, as on macOS.
constexpr char16_t NSUpArrowFunctionKey = 0xF700;
constexpr char16_t NSDownArrowFunctionKey = 0xF701;
constexpr char16_t NSLeftArrowFunctionKey = 0xF702;
constexpr char16_t NSRightArrowFunctionKey = 0xF703;
constexpr char16_t NSHomeFunctionKey = 0xF729;
constexpr char16_t NSEndFunctionKey = 0xF72B;
constexpr char16_t NSCarriageReturnCharacter = 0x000D;
constexpr char16_t NSEnterCharacter = 0x0003; ///< of the keypad
constexpr char16_t NSEscapeCharacter = 0x001B;

/// Modifier keys, left or right. On Linux command is the Super key; option is Alt and AltGr.
enum NSEventModifierFlags : UInt32 {
    NSAlphaShiftKeyMask = 1 << 16, ///< caps lock is on
    NSShiftKeyMask = 1 << 17,
    NSControlKeyMask = 1 << 18,
    NSAlternateKeyMask = 1 << 19,
    NSCommandKeyMask = 1 << 20,
};

/// The key of an event.
struct EventKey {
    char16_t character = 0; ///< a letter or one of the constants above, else 0
    UInt16 code = kNoKeyCode;
    UInt32 modifierFlags = 0; ///< modifiers held during the event
    bool isARepeat = false;   ///< the key was down already
};

/// A press or release of a mouse button, a key or a modifier key.
class NSEvent {
public:
    static NSEvent mouseDown(NSPoint locationInWindow, double timestamp = 0) {
        return {locationInWindow, {}, timestamp};
    }

    static NSEvent key(const EventKey& key, double timestamp = 0) { return {{}, key, timestamp}; }

    /// When it happened, on GetCurrentEventTime's clock, in seconds.
    double timestamp() const { return timestamp_; }

    /// The mouse's place. y grows downward.
    NSPoint locationInWindow() const { return locationInWindow_; }

    /// The key's letter or one of the constants above, else 0.
    char16_t charactersIgnoringModifiers() const { return key_.character; }

    /// The virtual key code, which stands for the key's place. kNoKeyCode for unknown keys.
    UInt16 keyCode() const { return key_.code; }

    UInt32 modifierFlags() const { return key_.modifierFlags; }

    bool isARepeat() const { return key_.isARepeat; }

    /// Gives the event to the surrounding views, when the view has no use for it.
    void passOn() { passedOn_ = true; }

    bool isPassedOn() const { return passedOn_; }

private:
    NSEvent(NSPoint locationInWindow, const EventKey& key, double timestamp)
        : locationInWindow_(locationInWindow), key_(key), timestamp_(timestamp) {}

    NSPoint locationInWindow_;
    EventKey key_;
    double timestamp_;
    bool passedOn_ = false;
};
