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

/// Reads a whole regular file of at most `limit` bytes. Never waits. EFBIG for a larger one,
/// ENOTSUP for a folder, a device or a pipe.
int readUserFile(const std::string& path, std::size_t limit, std::string& content);

/// Replaces the file as a whole; `content` is on disk first. Only this user can read it. Makes
/// missing folders. Of symbolic links the target is replaced. EACCES for a link of another user's,
/// which may lead anywhere. ENOTSUP for a device or a pipe, which would be lost.
int replaceUserFile(const std::string& path, std::string_view content);

/// Gives a file another name in the same file system. EEXIST when that name is taken, even if
/// another program takes it at the same moment.
int renameUserFile(const std::string& from, const std::string& to);
