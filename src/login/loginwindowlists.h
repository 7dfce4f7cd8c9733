// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"

// The login window's own lists (LoginItemAPI.h), of this user and of all users. An item is the
// application's when its bundle's name is, wherever it lies.

/// -1 when the list doesn't hold the application.
CFIndex loginItemAPIIndexOfURL(const CFURL* url, bool allUsers);

/// Makes the list hold the application once, at its end, or not at all. False when an item can't be
/// removed; one that can't be added counts as success.
bool setInLoginWindowList(const CFURL* url, bool autoLaunch, bool allUsers);
