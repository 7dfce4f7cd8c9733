// SPDX-License-Identifier: MIT
#pragma once

/// Whether the F-keys of Apple's keyboards act as F-keys without fn, as the kernel's driver has it.
/// The file is that of its parameter fnmode, in which 2 says so. True without such a file, which is
/// there only with such a keyboard; false when it says anything else.
bool kernelPrefersFunctionKeys(const char* parameterFile);
