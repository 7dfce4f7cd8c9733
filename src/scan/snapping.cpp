// SPDX-License-Identifier: MIT
#include "src/scan/snapping.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/store/prefs.h"

#include <cmath>

namespace {

constexpr double kMillisecondsASecond = 1000; ///< the spread is stored in whole milliseconds

// Literals of the platform: one object each.
const CFString* isOnKey() {
    return CFSTR("snapping");
}

const CFString* spreadKey() {
    return CFSTR("tryout.spread");
}

void store(const CFString* key, UInt32 value) {
    setPrefUInt32(key, value);
    CFPreferencesAppSynchronize(kAgentBundleID);
}

} // namespace

SnapSettings readSnapSettings() {
    UInt32 isOn = 1;
    getPrefUInt32(isOnKey(), &isOn);
    return {isOn != 0, prefsGetUnsignedValue(spreadKey()) / kMillisecondsASecond};
}

void setSnapping(bool isOn) {
    store(isOnKey(), isOn);
}

void setSpread(double seconds) {
    store(spreadKey(), static_cast<UInt32>(std::lround(seconds * kMillisecondsASecond)));
}
