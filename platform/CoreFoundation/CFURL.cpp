// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFURL.h"

#include <cstring>
#include <filesystem>

namespace {

CFRef<CFURL> makeURL(std::string path, bool isDirectory) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return CFRef<CFURL>::adopt(new CFURL(std::move(path), isDirectory));
}

} // namespace

bool CFURL::isEqual(const CFType& other) const {
    const auto& that = static_cast<const CFURL&>(other);
    return path_ == that.path_ && isDirectory_ == that.isDirectory_;
}

CFHashCode CFURL::hash() const {
    return std::hash<std::string>()(path_);
}

CFRef<CFURL> CFURLCreateWithFileSystemPath(const CFString* posixPath, bool isDirectory) {
    return CFURLCreateFromFileSystemRepresentation(toUTF8(posixPath).c_str(), isDirectory);
}

CFRef<CFURL> CFURLCreateFromFileSystemRepresentation(const char* path, bool isDirectory) {
    if (*path == '\0')
        return nullptr;
    if (*path == '/')
        return makeURL(path, isDirectory);
    std::error_code error;
    const std::string here = std::filesystem::current_path(error).string();
    return error ? nullptr : makeURL(here + '/' + path, isDirectory);
}

CFRef<CFURL> CFURLCreateCopyAppendingPathComponent(const CFURL* url, const CFString* component,
                                                   bool isDirectory) {
    const std::string separator = url->path() == "/" ? "" : "/";
    return makeURL(url->path() + separator + toUTF8(component), isDirectory);
}

CFRef<CFString> CFURLCopyFileSystemPath(const CFURL* url) {
    return createFromUTF8(url->path());
}

CFRef<CFString> CFURLCopyLastPathComponent(const CFURL* url) {
    const std::string_view path = url->path();
    return createFromUTF8(path == "/" ? path : path.substr(path.rfind('/') + 1));
}

bool CFURLGetFileSystemRepresentation(const CFURL* url, char* buffer, CFIndex bufferSize) {
    const std::string& path = url->path();
    if (static_cast<CFIndex>(path.size()) >= bufferSize)
        return false;
    std::memcpy(buffer, path.c_str(), path.size() + 1);
    return true;
}
