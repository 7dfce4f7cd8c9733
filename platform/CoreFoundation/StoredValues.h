// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <optional>

// How stored texts, numbers and booleans read as a type. `value` may be null. None when it doesn't
// read as that type.

/// A boolean; a number, true unless 0; yes, true, no or false in any letter case.
std::optional<bool> booleanFromValue(const CFType* value);

/// A number, truncated; or text that is exactly a decimal integer.
std::optional<CFIndex> integerFromValue(const CFType* value);
