// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/UserFiles.h"

#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

std::string userDataFolder() {
    return xdgDataFolders().front();
}

std::string userStateFolder() {
    return xdgStateHome();
}

int readUserFile(const std::string& path, std::size_t limit, std::string& content) {
    const FileContents file = readRegularFile(path, limit);
    switch (file.status) {
    case FileStatus::Read:
        content.assign(file.data->bytes().begin(), file.data->bytes().end());
        return 0;
    case FileStatus::TooLarge:
        return EFBIG;
    case FileStatus::Missing:
    case FileStatus::Unreadable:
        break;
    }
    return file.error ? file.error : ENOTSUP;
}

int replaceUserFile(const std::string& path, std::string_view content) {
    std::string destination = path;
    if (const int error = resolveOwnLinks(destination))
        return error;
    const std::size_t slash = destination.rfind('/');
    if (slash == std::string::npos)
        return EINVAL;
    if (std::error_code unknown; std::filesystem::is_other(destination, unknown))
        return ENOTSUP;
    if (const int error = makeFolders(destination.substr(0, slash), 0700))
        return error;
    PendingFile file(destination, content, 0600);
    return file.error() ? file.error() : file.putInPlace();
}

int renameUserFile(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL)
        return errno;
    // A file system that can't refuse: a second name can't replace one either.
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0 ? 0 : errno;
}
