// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/QuickDraw.h"
#include "src/record/palactions.h"

// The icons of the palette's actions and the drawing of its buttons. The icons are cached from
// palutilSetup to palutilCleanup, during one visit. Whatever is missing or damaged leaves out that
// content.

/// The value of prefs.buttonShape for rounded bevel buttons. Any other value means square corners.
constexpr UInt32 kButtonShapeRounded = 1;

void palutilSetup();
/// Forgets the list of actions, too.
void palutilCleanup();

/// Null when the action has none. While its outside application is installed, action 1 has that
/// one's icon.
CFRef<Icon> palutilCopyActionIcon(UInt8 action);

/// Draws a button into the current port, with the shape and content in `prefs`. `selected` is 1 for
/// the pushed-in look, else 0.
void palutilDrawBtn(UInt8 action, UInt8 selected, const Rect& bounds);

/// The same with the given shape and content.
void palutilDrawBtnAs(UInt8 action, UInt8 selected, const Rect& bounds, UInt32 shape,
                      UInt32 content);
