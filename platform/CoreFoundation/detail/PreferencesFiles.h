// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/detail/PreferencesDomain.h"

#include <map>
#include <string>
#include <vector>

/// The files of one domain: this user's, and all users' in search order. All users' values are
/// written to the first of those.
struct PreferencesFiles {
    explicit PreferencesFiles(const std::string& fileName);

    CFRef<const CFString> name;
    PreferencesDomain own;
    std::vector<PreferencesDomain> everyones; ///< never empty
};

/// The domain's files, read on first use and kept in memory. Null when the name is no file name.
PreferencesFiles* preferencesFiles(const CFString* domain);

/// All domains that were asked for, by name.
const std::map<std::u16string, PreferencesFiles>& allPreferencesFiles();
