// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Files.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The file descriptor of each open fork.
std::map<SInt16, int>& openForks() {
    static auto& forks = *new std::map<SInt16, int>;
    return forks;
}

/// The lowest reference number that isn't in use; 0 when all are.
SInt16 freeRefNum() {
    SInt16 number = 1;
    for (const auto& [used, file] : openForks()) {
        if (used != number)
            break;
        if (number == std::numeric_limits<SInt16>::max())
            return 0;
        ++number;
    }
    return number;
}

/// The file descriptor; -1 when no such fork is open.
int fileOfFork(SInt16 fork) {
    const auto found = openForks().find(fork);
    return found == openForks().end() ? -1 : found->second;
}

OSErr errorOfErrno(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return fnfErr;
    case EACCES:
    case EPERM:
        return permErr;
    case EMFILE:
    case ENFILE:
        return tmfoErr;
    default:
        return ioErr;
    }
}

bool isRegularFile(int file) {
    struct stat status {};

    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

bool CFURLGetFSRef(const CFURL* url, FSRef* ref) {
    struct stat status {};

    if (!url || !ref || stat(url->path().c_str(), &status) != 0)
        return false;
    ref->path = url->path();
    return true;
}

OSErr FSOpenFork(const FSRef* ref, std::size_t nameLength, const UniChar*, SInt8 permissions,
                 SInt16* fork) {
    if (nameLength > 0)
        return errFSForkNotFound;
    if (permissions != fsRdPerm)
        return permErr;
    const SInt16 number = freeRefNum();
    if (number == 0)
        return tmfoErr;
    // Doesn't wait for the other end of a pipe.
    const int file = open(ref->path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return errorOfErrno(errno);
    if (!isRegularFile(file)) {
        close(file);
        return permErr;
    }
    openForks()[number] = file;
    *fork = number;
    return noErr;
}

OSErr FSGetForkSize(SInt16 fork, std::int64_t* size) {
    const int file = fileOfFork(fork);

    struct stat status {};

    if (file < 0)
        return rfNumErr;
    if (fstat(file, &status) != 0)
        return ioErr;
    *size = status.st_size;
    return noErr;
}

OSErr FSReadFork(SInt16 fork, UInt16 positionMode, std::int64_t offset, std::size_t count,
                 void* buffer, std::size_t* actualCount) {
    const int file = fileOfFork(fork);
    if (file < 0)
        return rfNumErr;
    if (positionMode != fsFromStart || offset < 0)
        return paramErr;

    OSErr result = noErr;
    std::size_t filled = 0;
    while (filled < count && result == noErr) {
        const ssize_t got = pread(file, static_cast<UInt8*>(buffer) + filled, count - filled,
                                  offset + static_cast<off_t>(filled));
        if (got > 0)
            filled += static_cast<std::size_t>(got);
        else if (got == 0)
            result = eofErr;
        else if (errno != EINTR)
            result = ioErr;
    }
    if (actualCount)
        *actualCount = filled;
    return result;
}

OSErr FSCloseFork(SInt16 fork) {
    const int file = fileOfFork(fork);
    if (file < 0)
        return rfNumErr;
    openForks().erase(fork);
    close(file);
    return noErr;
}
