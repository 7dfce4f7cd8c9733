// SPDX-License-Identifier: MIT
#include "src/record/differences.h"

#include <cstring>

bool isSame(const Setting& setting, const PrefsRecord& a, const PrefsRecord& b) {
    const void *one = setting.in(a), *other = setting.in(b);
    return setting.notation == &kTextNotation
               ? std::strncmp(static_cast<const char*>(one), static_cast<const char*>(other),
                              setting.size) == 0
               : std::memcmp(one, other, setting.size) == 0;
}

SettingSet differences(const PrefsRecord& a, const PrefsRecord& b) {
    SettingSet different;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        different[i] = !isSame(kSettings[i], a, b);
    return different;
}

ChangeMask changesOf(const SettingSet& settings) {
    ChangeMask changes = 0;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            changes |= kSettings[i].changes;
    return changes;
}

void copySettings(const SettingSet& settings, const PrefsRecord& from, PrefsRecord& to) {
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            std::memcpy(kSettings[i].in(to), kSettings[i].in(from), kSettings[i].size);
}

std::size_t firstOf(const SettingSet& settings) {
    std::size_t i = 0;
    while (i < settings.size() && !settings[i])
        ++i;
    return i;
}
