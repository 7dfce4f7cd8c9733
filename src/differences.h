// SPDX-License-Identifier: MIT
#pragma once

#include "src/settings.h"

#include <bitset>

/// Some of the settings, by their place in kSettings. A state of all settings is a record; what
/// tells two states apart is such a set.
using SettingSet = std::bitset<kSettings.size()>;

SettingSet differences(const PrefsRecord& a, const PrefsRecord& b);

/// What changing those settings reports: the groups of all of them.
ChangeMask changesOf(const SettingSet& settings);

/// Copies those settings and no other byte.
void copySettings(const SettingSet& settings, const PrefsRecord& from, PrefsRecord& to);

/// The first of them; kSettings.size() when there is none.
std::size_t firstOf(const SettingSet& settings);
