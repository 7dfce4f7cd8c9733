// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFURL.h"

// Writing whole files. Only this user can read new ones.

/// Replaces the file as a whole: it is complete at every moment. Makes missing folders. Of a
/// symbolic link the target is replaced. False on failure; `*errorCode` (may be null) is then an
/// errno.
bool CFURLWriteDataAndPropertiesToResource(const CFURL* url, const CFData* data, SInt32* errorCode);

/// Deletes a file. True also when it is missing.
bool CFURLDestroyResource(const CFURL* url, SInt32* errorCode);

/// Keeps a damaged file under a second name, <file>.damaged-<n>, before it is replaced. Whether
/// that succeeded. macOS has no such operation.
bool keepFileAside(const CFURL* url);
