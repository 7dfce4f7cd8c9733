// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/detail/PreferencesDomain.h"

#include <map>
#include <string>
#include <vector>

/// The files of one domain: this user's, and all users' in the order in which they are searched.
/// All users' values are written to the first.
struct PreferencesFiles {
    explicit PreferencesFiles(const std::string& fileName);

    CFRef<const CFString> name;
    PreferencesDomain own;
    std::vector<PreferencesDomain> everyones; ///< never empty
};

/// The domain's files, read on first use and kept until the process is gone. Null for a name that
/// is no file's.
PreferencesFiles* preferencesFiles(const CFString* domain);

/// All that were asked for, by name.
const std::map<std::u16string, PreferencesFiles>& allPreferencesFiles();
