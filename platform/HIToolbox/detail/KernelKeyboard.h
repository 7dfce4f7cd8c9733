// SPDX-License-Identifier: MIT
#pragma once

/// Whether the F-keys of Apple keyboards act as F-keys without fn, according to the kernel's
/// driver. The file has its parameter fnmode; 2 means yes. It exists only with such a keyboard.
/// True without it, false for any other content.
bool kernelPrefersFunctionKeys(const char* parameterFile);
