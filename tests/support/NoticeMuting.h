// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/CoreFoundation/TestFiles.h"

/// All users' preferences, as an administrator may set them. They switch off the notice about
/// assistive access.
inline fs::path noticeMutingFile() {
    return fs::path(std::getenv("XDG_CONFIG_DIRS")) / "Preferences/org.korvex.Agent.plist";
}

/// `more`: further elements.
inline void muteNotice(const std::string& more = {}) {
    writeFile(noticeMutingFile(), dictionaryFile("<key>axReqLastNoticeDate</key>"
                                                 "<integer>2147483647</integer>"
                                                 "<key>firstStepsSeen</key><true/>" +
                                                 more));
}
