// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// This user's own files, apart from the settings. Paths are the file system's bytes. Errors are
// errno's numbers, 0 for none.

/// $XDG_DATA_HOME, or .local/share in the home folder. It may not be there yet.
std::string userDataFolder();

/// $XDG_STATE_HOME, or .local/state in the home folder. It may not be there yet.
std::string userStateFolder();

/// Makes `content` the whole file, on disk before it takes the old one's place. Only this user may
/// read it; folders that are missing are made. A file at the end of links is replaced, not a link.
int replaceUserFile(const std::string& path, std::string_view content);
