// SPDX-License-Identifier: MIT
#pragma once

/// Whether F-keys act as F-keys without fn, on a keyboard whose upper row has special functions.
/// Read at each call from this user's global preference com.apple.keyboard.fnState, a boolean. If
/// it is missing, the kernel's setting for Apple keyboards counts.
bool functionKeysAreStandard();
