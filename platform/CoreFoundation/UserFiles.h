// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// This user's own files other than the settings. Paths are bytes of the file system. Errors are
// errno numbers, 0 for none.

/// $XDG_DATA_HOME, or .local/share in the home folder. It may not be there yet.
std::string userDataFolder();

/// $XDG_STATE_HOME, or .local/state in the home folder. It may not be there yet.
std::string userStateFolder();

/// Replaces the file as a whole; `content` is on disk first. Only this user can read it. Makes
/// missing folders. Of symbolic links the target is replaced. ENOTSUP for a device or a pipe, which
/// would be lost.
int replaceUserFile(const std::string& path, std::string_view content);
