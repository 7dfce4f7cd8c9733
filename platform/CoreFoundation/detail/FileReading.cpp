// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/FileReading.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FileContents readOpenFile(int file, std::size_t limit) {
    struct stat info {};

    if (fstat(file, &info) != 0)
        return {FileStatus::Unreadable, nullptr, errno};
    if (!S_ISREG(info.st_mode))
        return {FileStatus::Unreadable, nullptr};
    if (static_cast<std::size_t>(info.st_size) > limit)
        return {FileStatus::TooLarge, nullptr};

    // One byte more than the size, to notice a file that grows meanwhile.
    std::vector<UInt8> bytes(static_cast<std::size_t>(info.st_size) + 1);
    std::size_t filled = 0;
    for (;;) {
        const ssize_t got = read(file, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return {FileStatus::Unreadable, nullptr, errno};
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
        if (filled > limit)
            return {FileStatus::TooLarge, nullptr};
        if (filled == bytes.size())
            bytes.resize(filled * 2);
    }
    bytes.resize(filled);
    return {FileStatus::Read, CFRef<CFData>::adopt(new CFData(std::move(bytes)))};
}

} // namespace

FileContents readRegularFile(const std::string& path, std::size_t limit) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        return {missing ? FileStatus::Missing : FileStatus::Unreadable, nullptr, errno};
    }
    FileContents contents = readOpenFile(file, limit);
    close(file);
    return contents;
}
