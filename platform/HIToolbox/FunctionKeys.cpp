// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/FunctionKeys.h"

#include "platform/CoreFoundation/CFPreferences.h"

#include <fstream>

namespace {

constexpr char kParameterFile[] = "/sys/module/hid_apple/parameters/fnmode";
constexpr int kFunctionKeysFirst = 2;

} // namespace

bool functionKeysAreStandard() {
    CFPreferencesSynchronize(kCFPreferencesAnyApplication, kCFPreferencesCurrentUser,
                             kCFPreferencesAnyHost);
    const auto value =
        CFPreferencesCopyValue(CFSTR("com.apple.keyboard.fnState"), kCFPreferencesAnyApplication,
                               kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
    if (!value)
        return kernelPrefersFunctionKeys(kParameterFile);
    const auto* boolean = dynamicCFCast<CFBoolean>(value.get());
    return boolean && CFBooleanGetValue(boolean);
}

bool kernelPrefersFunctionKeys(const char* parameterFile) {
    std::ifstream file(parameterFile);
    int mode = kFunctionKeysFirst; // without Apple's keyboards: others have no fn to hold
    if (file)
        mode = 0, file >> mode;
    return mode == kFunctionKeysFirst;
}
