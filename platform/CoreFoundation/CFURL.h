// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

/// The URL of a file or folder: an absolute path without a trailing slash, and whether it is a
/// folder. There are no other URLs here.
class CFURL final : public CFType {
public:
    CFURL(std::string path, bool isDirectory) : path_(std::move(path)), isDirectory_(isDirectory) {}

    const std::string& path() const { return path_; } ///< bytes as the file system has them

    bool isDirectory() const { return isDirectory_; }

    CFTypeID typeID() const override { return CFTypeID::URL; }

    bool isEqual(const CFType& other) const override;
    CFHashCode hash() const override;

private:
    std::string path_;
    bool isDirectory_;
};

/// A relative path starts at the current folder. Null for an empty path.
CFRef<CFURL> CFURLCreateWithFileSystemPath(const CFString* posixPath, bool isDirectory);
CFRef<CFURL> CFURLCreateFromFileSystemRepresentation(const char* path, bool isDirectory);
CFRef<CFURL> CFURLCreateCopyAppendingPathComponent(const CFURL* url, const CFString* component,
                                                   bool isDirectory);
/// The POSIX path; null when its bytes aren't valid UTF-8.
CFRef<CFString> CFURLCopyFileSystemPath(const CFURL* url);
CFRef<CFString> CFURLCopyLastPathComponent(const CFURL* url);
/// Writes the path and a terminating NUL. False when it doesn't fit in `bufferSize` bytes.
bool CFURLGetFileSystemRepresentation(const CFURL* url, char* buffer, CFIndex bufferSize);
