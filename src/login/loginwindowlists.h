// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"

// The login window's lists (LoginItemAPI.h) of this user and of all users. An item belongs to the
// application if the bundle's name is the same, in any folder.

/// -1 when the list doesn't contain the application.
CFIndex loginItemAPIIndexOfURL(const CFURL* url, bool allUsers);

/// Makes the list contain the application once, at its end, or not at all. False when an item can't
/// be removed. One that can't be added counts as success.
bool setInLoginWindowList(const CFURL* url, bool autoLaunch, bool allUsers);
