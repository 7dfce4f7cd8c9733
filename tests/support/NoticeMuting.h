// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/CoreFoundation/TestFiles.h"

/// All users' preferences as an administrator may set them: they keep the notice about assistive
/// access away from everybody who hasn't seen it yet.
inline fs::path noticeMutingFile() {
    return fs::path(std::getenv("XDG_CONFIG_DIRS")) / "Preferences/org.korvex.Agent.plist";
}

/// `more`: elements of theirs besides.
inline void muteNotice(const std::string& more = {}) {
    writeFile(noticeMutingFile(), dictionaryFile("<key>axReqLastNoticeDate</key>"
                                                 "<integer>2147483647</integer>"
                                                 "<key>firstStepsSeen</key><true/>" +
                                                 more));
}
