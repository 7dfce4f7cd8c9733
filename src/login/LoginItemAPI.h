// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

// The login window's list of applications that are opened at login: an array of items ("Path",
// "Hide") in the preference domain "loginwindow", under "AutoLaunchedApplicationDictionary". A
// value of another type counts as no list and isn't changed.
//
// `user` is kCFPreferencesCurrentUser for this user's list or kCFPreferencesAnyUser for all users'.
// Any other value is refused with 0, false or null. Paths are ASCII. Main thread only.

/// The properties for ReturnLoginItemPropertyAtIndex.
enum LoginItemProperty : int {
    kLoginItemFullPath = 1,
    kLoginItemExecutableName = 2, ///< the last part of the path
    kLoginItemHide = 3,           ///< "true" or "false": hidden once open
};

/// 0 also when there is no list.
CFIndex GetCountOfLoginItems(const CFString* user);

/// The text is in a static buffer until the next call. Null for an index outside the list, a
/// missing property or one of another type, and a path that isn't ASCII or is longer than 1024
/// characters.
const char* ReturnLoginItemPropertyAtIndex(const CFString* user, int property, CFIndex index);

/// True when the item was removed and the list stored.
bool RemoveLoginItemAtIndex(const CFString* user, CFIndex index);

/// Appends an item, even if the list has that path already. Only a `hide` of 1 means true. Refuses
/// a path that isn't ASCII. True when the list was stored.
bool AddLoginItemWithPropertiesToUser(const CFString* user, const char* path, UInt8 hide);

// Diagnostics, printed to standard output. False when the user is refused or an item can't be
// printed.

bool PrintNumberOfLoginItems(const CFString* user);
bool PrintOutAllLoginItems(const CFString* user);
bool PrintOutLoginItemAtIndex(const CFString* user, CFIndex index);
