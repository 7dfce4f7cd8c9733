// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/FunctionKeys.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/HIToolbox/detail/KernelKeyboard.h"

namespace {

constexpr char kParameterFile[] = "/sys/module/hid_apple/parameters/fnmode";

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
