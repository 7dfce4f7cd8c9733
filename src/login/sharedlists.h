// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"

// The system's shared lists of login items, this user's and all users'. An item is the
// application's when its path is, whatever the case of its letters.

bool sharedListHolds(const CFURL* url, bool allUsers);

/// Makes the list hold the application once, at its end, or not at all; of this user's
/// list, copies of it in other folders are taken out as well, and all users' items of it are hidden
/// for this user. A list that is
/// like that already isn't written. False when the right is refused or the list can't be changed.
bool setInSharedList(const CFURL* url, bool autoLaunch, bool allUsers);
