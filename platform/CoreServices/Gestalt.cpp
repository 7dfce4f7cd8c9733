// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Gestalt.h"

OSErr Gestalt(OSType selector, SInt32* response) {
    constexpr SInt32 kVersion = 0x1070;
    if (selector != gestaltSystemVersion)
        return gestaltUndefSelectorErr;
    *response = kVersion;
    return noErr;
}
