// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFDictionary.h"
#include "src/record/differences.h"

#include <string>
#include <vector>

// A file of settings: a property list whose root has the keys and texts of the settings domain. It
// is readable; profiles, exports and backups all have this format.

/// A key of a file that isn't taken, and the reason in words.
struct RefusedKey {
    std::string key; ///< as it can be shown: of a stranger's key the first 60 characters
    std::string reason;
};

/// What a file offers.
struct SettingsOffer {
    PrefsRecord record;  ///< the given record with the file's valid settings
    SettingSet settings; ///< the file's valid settings
    std::vector<RefusedKey> refused;
    std::string error; ///< why nothing could be read, in words; else empty
};

/// Whether the character changes how the text around it is shown: ends its line or turns its
/// direction. Nobody should be shown such a name.
bool disturbsText(char16_t character);

/// The dictionary of such a file.
CFRef<CFMutableDictionary> settingsDictionary(const SettingSet& settings,
                                              const PrefsRecord& record);

/// The content of such a file.
std::string settingsDocument(const SettingSet& settings, const PrefsRecord& record);

/// Reads a file over `base`. Unknown keys, values of another type and numbers out of range are
/// refused one by one. A file that is no property list with a dictionary at its root is refused as
/// a whole. Files have no version: what a newer one adds are such keys and values.
SettingsOffer readSettingsFile(const std::string& path, const PrefsRecord& base);

/// The same with a file's content.
SettingsOffer readSettings(const std::string& document, const PrefsRecord& base);

/// Writes the file as a whole. Returns errno, 0 for none.
int writeSettingsFile(const std::string& path, const SettingSet& settings,
                      const PrefsRecord& record);
