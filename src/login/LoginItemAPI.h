// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

// The login window's own list of applications that are opened at login: the array of items
// ("Path", "Hide") that the preference domain "loginwindow" holds under
// "AutoLaunchedApplicationDictionary". A value of any other type counts as no list, and is kept.
//
// `user` is kCFPreferencesCurrentUser, for this user's list, or kCFPreferencesAnyUser, for the list
// of all users; any other value is refused: 0, false or null. Paths pass in ASCII. Main thread
// only.

/// What ReturnLoginItemPropertyAtIndex tells of an item.
enum LoginItemProperty : int {
    kLoginItemFullPath = 1,
    kLoginItemExecutableName = 2, ///< the last part of the path
    kLoginItemHide = 3,           ///< "true" or "false": hidden once it is open
};

/// 0 also when there is no list.
CFIndex GetCountOfLoginItems(const CFString* user);

/// The text lies in one static buffer, until the next call. Null for an index outside the list, an
/// item without the property or with one of another type, and a path that has more than 1024
/// characters or isn't ASCII.
const char* ReturnLoginItemPropertyAtIndex(const CFString* user, int property, CFIndex index);

/// Whether the item was removed and the list stored.
bool RemoveLoginItemAtIndex(const CFString* user, CFIndex index);

/// Appends an item, whether or not the list has one of that path. `hide` is true when it is
/// exactly 1. A path that isn't ASCII is refused. Returns whether the list was stored.
bool AddLoginItemWithPropertiesToUser(const CFString* user, const char* path, UInt8 hide);

// Diagnostics, to the standard output. False when the user is refused or an item can't be printed.

bool PrintNumberOfLoginItems(const CFString* user);
bool PrintOutAllLoginItems(const CFString* user);
bool PrintOutLoginItemAtIndex(const CFString* user, CFIndex index);
