// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// Lets the value that was just set for this user give way, when the domain is synchronised, to
/// what another program stored meanwhile: to any value in the file other than `seen`, which is the
/// one that this program read, or null for none. A key that isn't in the file is written.
///
/// For a program that sets all its settings again: those that nobody changed here yield, the others
/// don't.
void preferencesGiveWay(const CFString* key, const CFType* seen, const CFString* domain);
