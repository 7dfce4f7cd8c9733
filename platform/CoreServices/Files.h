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

// Forks. Here a file has only a data fork, which is its content. An open fork has a reference
// number above zero. Main thread only.

constexpr SInt8 fsRdPerm = 1;
constexpr UInt16 fsFromStart = 1;

constexpr OSErr ioErr = -36;
constexpr OSErr eofErr = -39;
constexpr OSErr tmfoErr = -42;
constexpr OSErr fnfErr = -43;
constexpr OSErr rfNumErr = -51;
constexpr OSErr permErr = -54;
constexpr OSErr errFSForkNotFound = -1409;

/// Opens the fork for reading and gives its reference number. fsRdPerm is the only permission
/// granted; the data fork's name is empty. Follows symbolic links. Refuses all but regular files,
/// without waiting. fnfErr, permErr, tmfoErr when too many are open, errFSForkNotFound for another
/// name.
OSErr FSOpenFork(const FSRef* ref, std::size_t nameLength, const UniChar* name, SInt8 permissions,
                 SInt16* fork);

/// In bytes, at this moment.
OSErr FSGetForkSize(SInt16 fork, std::int64_t* size);

/// Reads `count` bytes at `offset` from the start (`positionMode` is fsFromStart). eofErr when the
/// fork ends earlier. `*actualCount` (may be null) receives the number of bytes read.
OSErr FSReadFork(SInt16 fork, UInt16 positionMode, std::int64_t offset, std::size_t count,
                 void* buffer, std::size_t* actualCount);

OSErr FSCloseFork(SInt16 fork);
