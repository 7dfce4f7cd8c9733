// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/settings.h"

#include <bitset>

/// A set of settings, by their index in kSettings. A state of all settings is a record; the
/// difference between two states is such a set.
using SettingSet = std::bitset<kSettings.size()>;

/// Whether both have the same value there. What lies behind the end of a text doesn't count.
bool isSame(const Setting& setting, const PrefsRecord& a, const PrefsRecord& b);

SettingSet differences(const PrefsRecord& a, const PrefsRecord& b);

constexpr std::size_t rowOf(const Setting& setting) {
    return static_cast<std::size_t>(&setting - kSettings.data());
}

/// The groups that a change of those settings reports.
ChangeMask changesOf(const SettingSet& settings);

/// Copies those settings and no other byte.
void copySettings(const SettingSet& settings, const PrefsRecord& from, PrefsRecord& to);

/// The index of the first one. kSettings.size() when there is none.
std::size_t firstOf(const SettingSet& settings);
