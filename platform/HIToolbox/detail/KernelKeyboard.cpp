// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KernelKeyboard.h"

#include <fstream>

namespace {

constexpr int kFunctionKeysFirst = 2;

} // namespace

bool kernelPrefersFunctionKeys(const char* parameterFile) {
    std::ifstream file(parameterFile);
    int mode = kFunctionKeysFirst; // without Apple's keyboards: others have no fn to hold
    if (file)
        mode = 0, file >> mode;
    return mode == kFunctionKeysFirst;
}
