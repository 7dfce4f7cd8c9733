#pragma once

#include "platform/CoreFoundation/CFURL.h"

#include <string>

/// A reference to a file or folder that exists.
struct FSRef {
    std::string path; ///< absolute
};

/// False when nothing is there.
bool CFURLGetFSRef(const CFURL* url, FSRef* ref);
