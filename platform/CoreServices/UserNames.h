// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// The login name of the user who runs this program. `useShortName` must be true. Null when the
/// system knows none.
CFRef<CFString> CSCopyUserName(bool useShortName);

/// The group of the administrators.
constexpr int kAdminGroup = 80;

/// Writes the numbers of the user's groups to `groups`, `baseGroup` first. `*count` is the room
/// there; it receives the number written. -1 when there are more, or no such user.
///
/// On Linux the administrators' group has no fixed number. Here root and members of sudo, wheel and
/// admin are in kAdminGroup, and nobody else.
int userGroups(const char* name, int baseGroup, int* groups, int* count);
