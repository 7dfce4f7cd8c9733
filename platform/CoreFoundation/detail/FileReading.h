#pragma once

#include "platform/CoreFoundation/CFData.h"

#include <string>

enum class CFFileStatus {
    Read,
    Missing,
    TooLarge,  ///< a regular file above the limit
    Unreadable ///< refused, not a regular file, or a read error
};

struct CFFileContents {
    CFFileStatus status;
    CFRef<CFData> data; ///< null unless Read
};

/// Reads a whole regular file of at most `limit` bytes. Symbolic links are followed; a pipe or
/// device neither blocks nor is read.
CFFileContents CFReadRegularFile(const std::string& path, std::size_t limit);
