// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/UserFiles.h"

#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"

#include <cerrno>
#include <filesystem>

std::string userDataFolder() {
    return xdgDataFolders().front();
}

std::string userStateFolder() {
    return xdgStateHome();
}

int replaceUserFile(const std::string& path, std::string_view content) {
    const std::string destination = resolveLinks(path);
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
