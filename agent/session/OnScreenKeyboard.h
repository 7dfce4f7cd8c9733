// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/Localization.h"

/// A keyboard on the screen that programs show and hide over the session's bus.
struct OnScreenKeyboard {
    const char* service;
    const char* path;
    const char* interface;
    const char* show; ///< a method; `toggled`: with whether it is to be seen, also to hide it
    const char* hide;
    bool isToggled;
    const char* program; ///< whose window it is
    double patience;     ///< seconds that its window may take
    bool needsPlace;     ///< else it counts as shown then, too
    const char* missing; ///< a sentence when the service isn't there, to be localized
    const char* broken;  ///< when it doesn't show
};

/// Onboard, which the bus starts. It is X11's.
inline constexpr OnScreenKeyboard kOnboard = {
    "org.onboard.Onboard",
    "/org/onboard/Onboard/Keyboard",
    "org.onboard.Onboard.Keyboard",
    "Show",
    "Hide",
    false,
    "Onboard",
    20,
    true,
    LOCALIZABLE("Agent", "To type on the screen, install Onboard."),
    LOCALIZABLE("Agent", "Onboard, the keyboard on the screen, doesn't start.")};

/// Squeekboard, in the layers of Wayland's compositors.
inline constexpr OnScreenKeyboard kSqueekboard = {
    "sm.puri.OSK0",
    "/sm/puri/OSK0",
    "sm.puri.OSK0",
    "SetVisible",
    "SetVisible",
    true,
    "Squeekboard",
    1,
    false,
    LOCALIZABLE("Agent",
                "To type on the screen, install Squeekboard and have it started at login."),
    LOCALIZABLE("Agent", "Squeekboard, the keyboard on the screen, doesn't answer.")};
