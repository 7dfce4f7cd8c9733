// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// For a program that sets all its settings at every save, those too that nobody changed: lets the
/// value that was just set for this user give way when the domain is synchronised. `seen` is what
/// this program had read, null for nothing. If the file then holds another value, another program
/// has stored that, and it stays. A key that isn't in the file is written.
void preferencesGiveWay(const CFString* key, const CFType* seen, const CFString* domain);
