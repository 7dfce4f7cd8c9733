// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFURL.h"
#include "platform/CoreServices/MacMemory.h"

// Reading whole files. After a failure the result is null, and nothing is left open or allocated.
// Files of more than kMaxFileContents are treated as too large for the memory.

constexpr UInt32 kMaxFileContents = 64u << 20; ///< bytes

/// Opens the file's data fork for reading; the caller closes it. `*size` receives the low 32 bits
/// of the fork's size in bytes. -1 and a size of 0 when the URL is null or the file can't be
/// opened.
SInt16 openURLDataFork(const CFURL* url, UInt32* size);

/// The whole data fork.
CFRef<CFData> fsGetFileContents(const CFURL* url);

/// The bytes from `offset` to the end of the data fork. A negative offset counts as 0. Null also
/// when the fork is shorter than the offset.
Handle fsGetFileContentsAsHandle(const CFURL* url, SInt32 offset);
