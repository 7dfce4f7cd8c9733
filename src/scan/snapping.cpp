// SPDX-License-Identifier: MIT
#include "src/scan/snapping.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/record/settings.h"
#include "src/store/prefs.h"

#include <cmath>

namespace {

constexpr double kMillisecondsASecond = 1000; ///< the spread is stored in whole milliseconds

const CFString* spreadKey() {
    return CFSTR("tryout.spread");
}

} // namespace

SnapSettings readSnapSettings() {
    constexpr const Setting& kSetting = settingAt(offsetof(PrefsRecord, snapping));
    PrefsRecord record;
    const auto stored = CFPreferencesCopyAppValue(CFSTR(kSetting.key), kAgentBundleID);
    kSetting.notation->read(stored.get(), kSetting.in(record));
    return {record.snapping != 0, prefsGetUnsignedValue(spreadKey()) / kMillisecondsASecond};
}

void setSpread(double seconds) {
    setPrefUInt32(spreadKey(), static_cast<UInt32>(std::lround(seconds * kMillisecondsASecond)));
    CFPreferencesAppSynchronize(kAgentBundleID);
}
