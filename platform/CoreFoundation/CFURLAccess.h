// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFURL.h"

// Writing whole files. Those that are made are for this user alone.

/// Writes the file anew and puts it in the old one's place, which so is whole at every moment;
/// folders that are missing are made. Where it is a symbolic link, its target is replaced. False
/// when that failed; `*errorCode` (may be null) is then an errno.
bool CFURLWriteDataAndPropertiesToResource(const CFURL* url, const CFData* data, SInt32* errorCode);

/// Deletes a file. True, too, when none is there.
bool CFURLDestroyResource(const CFURL* url, SInt32* errorCode);

/// Keeps a damaged file under a second name, <file>.damaged-<n>, before it is replaced; whether it
/// has one. No operation of the platform.
bool keepFileAside(const CFURL* url);
