// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/FileOutcome.h"

#include <cerrno>

namespace {

FileTrouble troubleOf(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return FileTrouble::NotAllowed;
    case EROFS:
        return FileTrouble::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FileTrouble::Full;
    case EWOULDBLOCK:
        return FileTrouble::InUse;
    case EISDIR:
    case ENOTDIR:
    case EEXIST:
    case ELOOP:
        return FileTrouble::InTheWay;
    default:
        return FileTrouble::Failed;
    }
}

} // namespace

FileOutcome outcomeOf(int error, const std::string& path) {
    return {error ? troubleOf(error) : FileTrouble::None, path, false, error};
}
