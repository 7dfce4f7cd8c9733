// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/QuickDraw.h"

#include <string>

// The palette's actions: number, title and icon from the list in the agent's bundle; and the
// drawing of its buttons. What was read is cached from palutilSetup to palutilCleanup, during one
// visit. Whatever is missing or damaged leaves out that content.

/// Action numbers are 0 to 39. Greater ones have neither title nor icon.
constexpr int kNumActions = 40;
/// An empty slot, drawn as a blank button.
constexpr UInt8 kEmptyAction = 0;

/// What a button shows: the bits of prefs.buttonContent.
enum : UInt32 {
    kButtonContentIcon = 0x1,
    kButtonContentName = 0x2,
};

/// The value of prefs.buttonShape for rounded bevel buttons. Any other value means square corners.
constexpr UInt32 kButtonShapeRounded = 1;

void palutilSetup();
void palutilCleanup();

/// Null when the action has none. Borrowed until palutilCleanup.
const CFString* palutilActionTitle(UInt8 action);

/// The action in words, in UTF-8: its title, else its number.
std::string palutilActionName(UInt8 action);

/// Null when the action has none. While its outside application is installed, action 1 has that
/// one's icon.
CFRef<Icon> palutilCopyActionIcon(UInt8 action);

/// Draws a button into the current port, with the shape and content in `prefs`. `selected` is 1 for
/// the pushed-in look, else 0.
void palutilDrawBtn(UInt8 action, UInt8 selected, const Rect& bounds);

/// The same with the given shape and content.
void palutilDrawBtnAs(UInt8 action, UInt8 selected, const Rect& bounds, UInt32 shape,
                      UInt32 content);
