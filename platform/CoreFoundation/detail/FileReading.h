// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"

#include <string>

enum class FileStatus {
    Read,
    Missing,
    TooLarge,  ///< a regular file above the limit
    Unreadable ///< refused, not a regular file, or a read error
};

struct FileContents {
    FileStatus status;
    CFRef<CFData> data; ///< null unless Read
    int error = 0;      ///< errno, or 0 when no system call failed
};

/// Reads a whole regular file of at most `limit` bytes. Symbolic links are followed; a pipe or
/// device neither blocks nor is read.
FileContents readRegularFile(const std::string& path, std::size_t limit);
