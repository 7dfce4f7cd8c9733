// SPDX-License-Identifier: MIT
#pragma once

/// Whether the F-keys of a keyboard whose upper row has special functions act as F-keys without fn,
/// read afresh. This user's global preference com.apple.keyboard.fnState, a boolean, says so; where
/// it is absent, what the kernel does with Apple's keyboards.
bool functionKeysAreStandard();
