// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/Files.h"

// The user's folders.

constexpr SInt16 kUserDomain = -32763;

enum : OSType {
    kApplicationSupportFolderType = fourCharCode("asup"), ///< $XDG_DATA_HOME
    kDocumentsFolderType = fourCharCode("docs"), ///< as the desktop names it, else the home folder
};

/// fnfErr when the folder is missing and isn't to be made, or can't be made. paramErr for any other
/// domain or type.
OSErr FSFindFolder(SInt16 domain, OSType type, bool createFolder, FSRef* folder);
