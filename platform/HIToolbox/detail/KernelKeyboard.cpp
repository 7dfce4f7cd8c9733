// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KernelKeyboard.h"

#include <fstream>

namespace {

constexpr int kFunctionKeysFirst = 2;

} // namespace

bool kernelPrefersFunctionKeys(const char* parameterFile) {
    std::ifstream file(parameterFile);
    int mode = kFunctionKeysFirst; // without Apple keyboards; others have no fn key
    if (file)
        mode = 0, file >> mode;
    return mode == kFunctionKeysFirst;
}
