// SPDX-License-Identifier: MIT
#pragma once

#include "src/store/settingsfile.h"

#include <array>
#include <cstdint>

// Named states of the settings, such as "Morning" or "Tired": a file of settings each, in
// korvex/profiles under the user's data folder. Names and messages are in UTF-8. An operation that
// can fail returns why, in words, or an empty text.

/// What a profile holds: every setting but the on/off switch and those of the login.
SettingSet profileSettings();

/// In alphabetical order.
std::vector<std::string> profileNames();

/// Why profiles can't be read. Empty when they can.
std::string profilesFault();

/// Why a profile can't have that name. Empty when it can. A name has 1 to 60 bytes of UTF-8. It
/// doesn't begin with a point, has no blank at its ends, no slash, and nothing that disturbsText.
std::string profileNameFault(const std::string& name);

/// Saves those settings of the record, over a profile of the same name as well.
std::string saveProfile(const std::string& name, const PrefsRecord& record,
                        const SettingSet& settings = profileSettings());

/// The name if it is free. Otherwise the name with a number after it.
std::string freeProfileName(const std::string& name);

/// What the profile would change in `base`. Its error is set when there is none of that name.
SettingsOffer readProfile(const std::string& name, const PrefsRecord& base);

/// Differs when a profile's file has changed: the file's number, its size, and when it was written.
using ProfileStamp = std::array<std::int64_t, 4>;
ProfileStamp profileStamp(const std::string& name);

/// Fails when the new name is taken. Also fails when the profile is in use and that can't be
/// stored.
std::string renameProfile(const std::string& name, const std::string& newName);
std::string deleteProfile(const std::string& name);

/// The profile that was used or saved last; empty when there was none or it is gone. Whether the
/// settings have changed since shows in readProfile.
std::string currentProfile();
std::string setCurrentProfile(const std::string& name);
