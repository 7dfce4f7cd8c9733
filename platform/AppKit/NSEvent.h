// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/HIToolbox/KeyCodes.h"

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

/// Modifier keys, whichever of the two of a kind is held. On Linux command is the Super key, and
/// option is Alt and AltGr.
enum NSEventModifierFlags : UInt32 {
    NSAlphaShiftKeyMask = 1 << 16, ///< caps lock is on
    NSShiftKeyMask = 1 << 17,
    NSControlKeyMask = 1 << 18,
    NSAlternateKeyMask = 1 << 19,
    NSCommandKeyMask = 1 << 20,
};

/// The key of an event.
struct EventKey {
    char16_t character = 0; ///< one of the constants above or a letter; 0 when it has neither
    UInt16 code = kNoKeyCode;
    UInt32 modifierFlags = 0; ///< what was held beside it
    bool isARepeat = false;   ///< the key was down already
};

/// A press or release of a mouse button, of a key or of a modifier key, on its way to a view.
class NSEvent {
public:
    static NSEvent mouseDown(NSPoint locationInWindow, double timestamp = 0) {
        return {locationInWindow, {}, timestamp};
    }

    static NSEvent key(const EventKey& key, double timestamp = 0) { return {{}, key, timestamp}; }

    /// When it happened, not when it is handled: seconds of GetCurrentEventTime's clock.
    double timestamp() const { return timestamp_; }

    /// Of the mouse; y grows downward.
    NSPoint locationInWindow() const { return locationInWindow_; }

    /// Of the key, one of the constants above or a letter; 0 for a key that has neither.
    char16_t charactersIgnoringModifiers() const { return key_.character; }

    /// The virtual key code, which names the key by its place, or kNoKeyCode.
    UInt16 keyCode() const { return key_.code; }

    UInt32 modifierFlags() const { return key_.modifierFlags; }

    bool isARepeat() const { return key_.isARepeat; }

    /// A view that has no use for the event gives it back to those around it.
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
