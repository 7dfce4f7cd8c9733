// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"

#include <string>

/// A reference to a file or folder that exists.
struct FSRef {
    std::string path; ///< absolute
};

/// False when nothing is there.
bool CFURLGetFSRef(const CFURL* url, FSRef* ref);

// Forks. A file here has its data fork only: its content. An open fork has a reference number above
// zero. Main thread only.

constexpr SInt8 fsRdPerm = 1;
constexpr UInt16 fsFromStart = 1;

constexpr OSErr ioErr = -36;
constexpr OSErr eofErr = -39;
constexpr OSErr tmfoErr = -42;
constexpr OSErr fnfErr = -43;
constexpr OSErr rfNumErr = -51;
constexpr OSErr permErr = -54;
constexpr OSErr errFSForkNotFound = -1409;

/// Opens the fork for reading and gives its reference number; no other permission than fsRdPerm is
/// granted. The data fork's name is empty. Symbolic links are followed; what isn't a regular file
/// is refused without waiting for it. fnfErr, permErr, tmfoErr when too many are open, or
/// errFSForkNotFound for a name that isn't empty.
OSErr FSOpenFork(const FSRef* ref, std::size_t nameLength, const UniChar* name, SInt8 permissions,
                 SInt16* fork);

/// In bytes, as it is now.
OSErr FSGetForkSize(SInt16 fork, std::int64_t* size);

/// Reads `count` bytes at `offset` from the start (`positionMode` is fsFromStart). eofErr when the
/// fork ends before; `*actualCount` (may be null) is then the number of bytes that were read.
OSErr FSReadFork(SInt16 fork, UInt16 positionMode, std::int64_t offset, std::size_t count,
                 void* buffer, std::size_t* actualCount);

OSErr FSCloseFork(SInt16 fork);
