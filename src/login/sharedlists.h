// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"

// The system's shared lists of login items, this user's and all users'. An item belongs to the
// application if the path is the same, in any letter case.

bool sharedListHolds(const CFURL* url, bool allUsers);

/// Makes the list contain the application once, at its end, or not at all. Changes of this user's
/// list also remove copies in other folders, and hide all users' items of the application for this
/// user. A list that is already so isn't written. False when the right is refused or the list can't
/// be changed.
bool setInSharedList(const CFURL* url, bool autoLaunch, bool allUsers);
