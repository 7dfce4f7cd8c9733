// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/QuickDraw.h"

#include <string>

// The palette's actions, which the pane knows by number, title and icon from the list in the
// agent's bundle, and the drawing of its buttons. What was found is kept from palutilSetup to
// palutilCleanup, one visit of the pane. Whatever is missing or damaged yields less content.

/// Action numbers are 0 to 39; greater ones have neither title nor icon.
constexpr int kNumActions = 40;
/// Marks an empty slot, which is drawn as a blank button.
constexpr UInt8 kEmptyAction = 0;

/// What a button shows: the bits of prefs.buttonContent.
enum : UInt32 {
    kButtonContentIcon = 0x1,
    kButtonContentName = 0x2,
};

/// The value of prefs.buttonShape for rounded bevel buttons; any other one means square corners.
constexpr UInt32 kButtonShapeRounded = 1;

void palutilSetup();
void palutilCleanup();

/// Null when the action has none. Borrowed until palutilCleanup.
const CFString* palutilActionTitle(UInt8 action);

/// The action in words, in UTF-8: its title, else its number.
std::string palutilActionName(UInt8 action);

/// Null when the action has none. Action 1 has that of an outside application while that one is
/// installed.
CFRef<Icon> palutilCopyActionIcon(UInt8 action);

/// Draws a button into the current port, in the shape and with the content of `prefs`. `selected`
/// is 1 for the pushed-in look, else 0.
void palutilDrawBtn(UInt8 action, UInt8 selected, const Rect& bounds);

/// The same in the given shape and content.
void palutilDrawBtnAs(UInt8 action, UInt8 selected, const Rect& bounds, UInt32 shape,
                      UInt32 content);
