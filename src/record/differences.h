// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/settings.h"

#include <bitset>

/// A set of settings, by their index in kSettings. A state of all settings is a record; the
/// difference between two states is such a set.
using SettingSet = std::bitset<kSettings.size()>;

SettingSet differences(const PrefsRecord& a, const PrefsRecord& b);

/// The groups that a change of those settings reports.
ChangeMask changesOf(const SettingSet& settings);

/// Copies those settings and no other byte.
void copySettings(const SettingSet& settings, const PrefsRecord& from, PrefsRecord& to);

/// The index of the first one. kSettings.size() when there is none.
std::size_t firstOf(const SettingSet& settings);
