// SPDX-License-Identifier: MIT
#pragma once

#include "src/differences.h"

#include <string>
#include <vector>

// A file of settings: a property list whose root holds the keys and texts of the settings domain.
// So it is readable, and a profile, an export and a backup are the same thing.

/// A key of a file that isn't taken over, and why, in words.
struct RefusedKey {
    std::string key;
    std::string reason;
};

/// What a file offers.
struct SettingsOffer {
    PrefsRecord record;  ///< the given one with the sound settings of the file
    SettingSet settings; ///< those that the file has and that are sound
    std::vector<RefusedKey> refused;
    std::string error; ///< why nothing could be read, in words; else empty
};

/// The settings as the text of such a file.
std::string settingsDocument(const SettingSet& settings, const PrefsRecord& record);

/// Reads a file over `base`. Unknown keys, values of another kind and numbers outside their range
/// are refused one by one; a file that is no property list with a dictionary at its root as a
/// whole. No version is noted in a file: what a newer one brings are such keys and values.
SettingsOffer readSettingsFile(const std::string& path, const PrefsRecord& base);

/// Writes a file as a whole; returns errno's number, 0 for none.
int writeSettingsFile(const std::string& path, const SettingSet& settings,
                      const PrefsRecord& record);
