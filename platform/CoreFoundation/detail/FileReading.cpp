#include "platform/CoreFoundation/detail/FileReading.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

CFFileContents readOpenFile(int file, std::size_t limit) {
    struct stat info {};

    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode))
        return {CFFileStatus::Unreadable, nullptr};
    if (static_cast<std::size_t>(info.st_size) > limit)
        return {CFFileStatus::TooLarge, nullptr};

    // One byte more than the size, so that a file that grows meanwhile is noticed.
    std::vector<UInt8> bytes(static_cast<std::size_t>(info.st_size) + 1);
    std::size_t filled = 0;
    for (;;) {
        const ssize_t got = read(file, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return {CFFileStatus::Unreadable, nullptr};
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
        if (filled > limit)
            return {CFFileStatus::TooLarge, nullptr};
        if (filled == bytes.size())
            bytes.resize(filled * 2);
    }
    bytes.resize(filled);
    return {CFFileStatus::Read, CFRef<CFData>::adopt(new CFData(std::move(bytes)))};
}

} // namespace

CFFileContents CFReadRegularFile(const std::string& path, std::size_t limit) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        return {missing ? CFFileStatus::Missing : CFFileStatus::Unreadable, nullptr};
    }
    CFFileContents contents = readOpenFile(file, limit);
    close(file);
    return contents;
}
