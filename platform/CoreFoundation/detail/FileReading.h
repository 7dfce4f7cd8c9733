// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"

#include <string>

enum class FileStatus {
    Read,
    Missing,
    TooLarge,  ///< a regular file above the limit
    Unreadable ///< no permission, no regular file, or a read error
};

struct FileContents {
    FileStatus status;
    CFRef<CFData> data; ///< null unless Read
    int error = 0;      ///< errno, or 0 when no system call failed
};

/// Reads a whole regular file of at most `limit` bytes. Follows symbolic links. Doesn't read pipes
/// or devices, and doesn't block on them.
FileContents readRegularFile(const std::string& path, std::size_t limit);
