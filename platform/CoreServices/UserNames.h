// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// The login name of the user who runs this program: `useShortName` is true. Null when the system
/// knows none.
CFRef<CFString> CSCopyUserName(bool useShortName);

/// The group of the administrators.
constexpr int kAdminGroup = 80;

/// Writes the user's groups to `groups`, `baseGroup` first. `*count` says how many have room there,
/// and receives how many were written. -1 when there are more, or no such user.
///
/// Linux numbers its groups as it likes. Here root and the members of sudo, wheel and admin are in
/// kAdminGroup, and nobody else is.
int userGroups(const char* name, int baseGroup, int* groups, int* count);
