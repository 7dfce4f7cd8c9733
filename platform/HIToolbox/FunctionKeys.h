// SPDX-License-Identifier: MIT
#pragma once

/// Whether the F-keys of a keyboard whose upper row has special functions act as F-keys without fn,
/// read afresh: this user's global preference com.apple.keyboard.fnState, a boolean, and, where
/// that is absent, what the kernel does with Apple's keyboards.
bool functionKeysAreStandard();

/// What the kernel's driver of Apple's keyboards does, from the file of its parameter fnmode, in
/// which 2 says that F-keys come first. True without such a file, which is there only with such a
/// keyboard. False when it says anything else.
bool kernelPrefersFunctionKeys(const char* parameterFile);
