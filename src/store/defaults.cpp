// SPDX-License-Identifier: MIT
#include "src/store/defaults.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/record/settings.h"

PrefsRecord defaultRecord() {
    PrefsRecord record;
    for (const Setting& setting : kSettings)
        setting.notation->read(CFPreferencesCopyValue(CFSTR(setting.key), kAgentBundleID,
                                                      kCFPreferencesAnyUser, kCFPreferencesAnyHost)
                                   .get(),
                               setting.in(record));
    return record;
}
