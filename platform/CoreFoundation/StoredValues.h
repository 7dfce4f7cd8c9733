// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <optional>

// How a value that was stored as a text, a number or a boolean reads. `value` may be null, and a
// value that reads as neither gives none.

/// A boolean; a number, true but for 0; or yes, true, no or false in any letter case.
std::optional<bool> booleanFromValue(const CFType* value);

/// A number, truncated; or a text that is wholly a decimal integer.
std::optional<CFIndex> integerFromValue(const CFType* value);
