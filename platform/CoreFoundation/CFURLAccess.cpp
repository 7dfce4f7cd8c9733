// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFURLAccess.h"

#include "platform/CoreFoundation/detail/FileLock.h"
#include "platform/CoreFoundation/detail/FileReplacement.h"

#include <cerrno>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr unsigned kFileMode = 0600;
constexpr unsigned kFolderMode = 0700;

int replace(const std::string& path, std::string_view content) {
    if (const int error =
            makeFolders(std::filesystem::path(path).parent_path().string(), kFolderMode))
        return error;
    const FileLock lock(path + ".lock", kFileMode);
    if (lock.error() != 0)
        return lock.error();
    PendingFile file(path, content, kFileMode);
    return file.error() != 0 ? file.error() : file.putInPlace();
}

bool succeeded(int error, SInt32* errorCode) {
    if (errorCode)
        *errorCode = error;
    return error == 0;
}

} // namespace

bool CFURLWriteDataAndPropertiesToResource(const CFURL* url, const CFData* data,
                                           SInt32* errorCode) {
    const auto bytes = data->bytes();
    return succeeded(replace(resolveLinks(url->path()),
                             {reinterpret_cast<const char*>(bytes.data()), bytes.size()}),
                     errorCode);
}

bool CFURLDestroyResource(const CFURL* url, SInt32* errorCode) {
    const bool gone = unlink(url->path().c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
    return succeeded(gone ? 0 : errno, errorCode);
}

bool keepFileAside(const CFURL* url) {
    return !keepAside(resolveLinks(url->path())).empty();
}
