// SPDX-License-Identifier: MIT
#pragma once

#include "src/settingsfile.h"

#include <cstdint>
#include <filesystem>
#include <utility>

// Named states of the settings, such as "Morning" or "Tired": a file of settings each, in
// korvex/profiles under the user's data folder. Names and messages are in UTF-8. An operation that
// can fail returns why, in words, or an empty text.

/// What a profile holds: every setting but the on/off switch and those of the login.
SettingSet profileSettings();

/// In the order of the alphabet.
std::vector<std::string> profileNames();

/// Why those that there may be can't be read; empty when they can.
std::string profilesFault();

/// Why there can be no profile of that name; empty when there can. A name has 1 to 60 bytes,
/// doesn't begin with a point, and holds neither a slash nor a control character.
std::string profileNameFault(const std::string& name);

/// Saves those settings of the record, over a profile of the same name as well.
std::string saveProfile(const std::string& name, const PrefsRecord& record,
                        const SettingSet& settings = profileSettings());

/// The name, or with a number after it, that no profile has yet.
std::string freeProfileName(const std::string& name);

/// What it offers over `base`; its error is set when there is none of that name.
SettingsOffer readProfile(const std::string& name, const PrefsRecord& base);

/// Tells whether a profile's file is still the one that was read: when it was written, and its
/// size.
using ProfileStamp = std::pair<std::filesystem::file_time_type, std::uintmax_t>;
ProfileStamp profileStamp(const std::string& name);

/// Fails when the new name is taken, and when the one in use would lose its place as that.
std::string renameProfile(const std::string& name, const std::string& newName);
std::string deleteProfile(const std::string& name);

/// The profile that was used or saved last; empty when there was none or it is gone. Whether the
/// settings have changed since shows in readProfile.
std::string currentProfile();
std::string setCurrentProfile(const std::string& name);
