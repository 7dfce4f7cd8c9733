// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// For a program that sets all its settings at each save, even unchanged ones. The value just set
/// for this user gives way to another program's. `seen` is what this program read before, null for
/// nothing. If synchronising finds another value than `seen` in the file, that value stays. A key
/// that isn't in the file is written.
void preferencesGiveWay(const CFString* key, const CFType* seen, const CFString* domain);
