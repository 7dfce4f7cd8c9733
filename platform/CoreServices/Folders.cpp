// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Folders.h"

#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"

#include <QStandardPaths>

#include <filesystem>

namespace {

constexpr unsigned kFolderMode = 0700;

std::string folderOfType(OSType type) {
    switch (type) {
    case kApplicationSupportFolderType:
        return xdgDataFolders().front();
    case kDocumentsFolderType:
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString();
    default:
        return {};
    }
}

} // namespace

OSErr FSFindFolder(SInt16 domain, OSType type, bool createFolder, FSRef* folder) {
    const std::string path = folderOfType(type);
    if (domain != kUserDomain || path.empty())
        return paramErr;
    std::error_code error;
    if (createFolder ? makeFolders(path, kFolderMode) != 0
                     : !std::filesystem::is_directory(path, error))
        return fnfErr;
    folder->path = path;
    return noErr;
}
