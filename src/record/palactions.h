// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"

#include <string>

// The palette's actions: number, title and name of the icon, from the list in the agent's bundle.
// What was read is cached until palutilForgetActions. A missing or damaged list has no titles.

/// Action numbers are 0 to 39. Greater ones have neither title nor icon.
constexpr int kNumActions = 40;
/// An empty slot, drawn as a blank button.
constexpr UInt8 kEmptyAction = 0;

/// `bundle` gives the agent's bundle, borrowed, or null. It is asked when the list is first needed.
void palutilUseBundle(CFBundle* (*bundle)());

/// Null when there is none. Borrowed.
const CFBundle* palutilBundle();

/// Null when the action has none. Borrowed until palutilForgetActions.
const CFString* palutilActionTitle(UInt8 action);

/// The title in the user's language. Null when the action has none.
CFRef<const CFString> palutilCopyShownTitle(UInt8 action);

/// The action in words, in UTF-8: its title, else its number.
std::string palutilActionName(UInt8 action);

/// The name of the action's icon file, without the extension. Null when it has none. Borrowed.
const CFString* palutilActionIconName(UInt8 action);

void palutilForgetActions();
