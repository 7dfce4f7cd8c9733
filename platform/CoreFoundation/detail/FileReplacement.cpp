#include "platform/CoreFoundation/detail/FileReplacement.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr auto kLockPatience = 2s;
constexpr auto kLockInterval = 10ms;
constexpr int kMostLinks = 40;
constexpr int kMostDamagedFiles = 1000;

bool tryLock(int file) {
    const auto deadline = std::chrono::steady_clock::now() + kLockPatience;
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) ||
            std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(kLockInterval);
    }
    return true;
}

bool writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t wrote = write(file, content.data(), content.size());
        if (wrote < 0 && errno == EINTR)
            continue;
        if (wrote <= 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(wrote));
    }
    return true;
}

void flushFolder(const std::string& path) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

/// Flushes the folder, so that the new name outlasts a power cut, on a thread of its own: it takes
/// as long as flushing the file did, and whether the old or the new file is found after a power
/// cut, it is whole. At most one is under way, and the process ends after it.
void flushFolderSoon(std::string path) {
    static std::jthread flush;
    try {
        flush = std::jthread([path] { flushFolder(path); });
    } catch (const std::system_error&) {
        flushFolder(path);
    }
}

} // namespace

CFFileLock::CFFileLock(const std::string& path, unsigned mode)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, mode)),
      held_(file_ >= 0 && tryLock(file_)) {}

CFFileLock::~CFFileLock() {
    if (file_ >= 0)
        close(file_);
}

bool CFMakeFolders(const std::string& path, unsigned mode) {
    if (mkdir(path.c_str(), mode) == 0 || errno == EEXIST)
        return true;
    const std::size_t slash = path.rfind('/');
    return errno == ENOENT && slash != std::string::npos && slash > 0 &&
           CFMakeFolders(path.substr(0, slash), mode) &&
           (mkdir(path.c_str(), mode) == 0 || errno == EEXIST);
}

std::string CFResolveLinks(std::string path) {
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(path, error); ++i)
        path = (fs::path(path).parent_path() / fs::read_symlink(path, error)).string();
    return path;
}

CFPendingFile::CFPendingFile(const std::string& destination, std::string_view content,
                             unsigned mode)
    : destination_(destination), path_(destination + ".new") {
    // What a crash left there is nobody's any more: the caller holds the lock.
    const int file =
        open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, mode);
    if (file < 0)
        return;
    written_ = fchmod(file, mode) == 0 && writeAll(file, content) && fsync(file) == 0;
    written_ = close(file) == 0 && written_;
    if (!written_)
        unlink(path_.c_str());
}

CFPendingFile::~CFPendingFile() {
    if (written_)
        unlink(path_.c_str());
}

bool CFPendingFile::putInPlace() {
    if (rename(path_.c_str(), destination_.c_str()) != 0)
        return false;
    written_ = false;
    flushFolderSoon(fs::path(destination_).parent_path().string());
    return true;
}

bool CFKeepAside(const std::string& path) {
    for (int n = 1; n <= kMostDamagedFiles; ++n) {
        const std::string name = path + ".damaged-" + std::to_string(n);
        if (link(path.c_str(), name.c_str()) == 0)
            return true;
        if (errno == EEXIST)
            continue;
        // A file system without hard links: the name changes instead.
        if (renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0)
            return true;
        if (errno != EEXIST)
            return false;
    }
    return false;
}
