// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/FileReplacement.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <set>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int kMostLinks = 40;
constexpr int kMostDamagedFiles = 1000;
constexpr std::chrono::minutes kLongestWrite{1};

/// Ends the names of pending files; the X are replaced.
constexpr char kUniqueEnd[] = ".kvXXXXXX";
constexpr std::string_view kOwnEnd = ".kv";

int writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t wrote = ::write(file, content.data(), content.size());
        if (wrote < 0 && errno == EINTR)
            continue;
        if (wrote <= 0)
            return wrote < 0 ? errno : EIO;
        content.remove_prefix(static_cast<std::size_t>(wrote));
    }
    return 0;
}

/// Leaves alone what is right already: each change of a file costs the disk's journal an entry.
bool giveMode(int file, unsigned mode) {
    struct stat now;
    return fstat(file, &now) == 0 && ((now.st_mode & 0777) == mode || fchmod(file, mode) == 0);
}

void flushFolder(const std::string& path) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

/// Whether the file beside the destination was never put in place and nobody writes to it any more.
bool isLeftover(const fs::directory_entry& file, const std::string& destination) {
    const std::string name = file.path().filename();
    const std::string start =
        fs::path(destination).filename().string() + std::string(kPendingSuffix);
    if (!name.starts_with(start))
        return false;
    const std::string end = name.substr(start.size());
    const bool isOurs =
        end.size() == std::string_view(kUniqueEnd).size() && end.starts_with(kOwnEnd);
    std::error_code error;
    return (end.empty() || isOurs) &&
           (!fs::is_regular_file(file.symlink_status(error)) ||
            fs::file_time_type::clock::now() - file.last_write_time(error) > kLongestWrite);
}

void removeLeftovers(const std::string& destination) {
    std::error_code error;
    fs::directory_iterator file(fs::path(destination).parent_path(), error);
    for (; !error && file != fs::directory_iterator(); file.increment(error))
        if (isLeftover(*file, destination))
            unlink(file->path().c_str());
}

void finish(const std::string& destination) {
    removeLeftovers(destination);
    flushFolder(fs::path(destination).parent_path());
}

/// Finishes files that were put in place: removes what crashed writers have left beside them, and
/// flushes the folder, so that the new name survives a power cut. That takes as long as flushing a
/// file, so it has a thread of its own. Before it is done a power cut may leave the old file, which
/// is whole. The process waits for it before it exits. Never destroyed: exit handlers save too.
class Finisher {
public:
    void finishSoon(const std::string& destination);

private:
    bool start();
    void run();
    void wait();

    std::mutex guard_;
    std::condition_variable changed_;
    std::set<std::string> waiting_; ///< destinations
    bool isRunning_ = false;
    bool isBusy_ = false;
    bool exitWaits_ = false; ///< an exit handler waits for all
};

Finisher& finisher() {
    static Finisher& finisher = *new Finisher;
    return finisher;
}

void Finisher::finishSoon(const std::string& destination) {
    const std::lock_guard lock(guard_);
    if (!isRunning_ && !start())
        return finish(destination);
    waiting_.insert(destination);
    if (!exitWaits_)
        exitWaits_ = std::atexit([] { finisher().wait(); }) == 0;
    changed_.notify_all();
}

bool Finisher::start() {
    try {
        std::thread([this] { run(); }).detach();
        isRunning_ = true;
    } catch (const std::system_error&) {
        // there are too many threads
    }
    return isRunning_;
}

void Finisher::run() {
    std::unique_lock lock(guard_);
    for (;;) {
        changed_.wait(lock, [this] { return !waiting_.empty(); });
        const std::string destination = waiting_.extract(waiting_.begin()).value();
        isBusy_ = true;
        lock.unlock();
        finish(destination);
        lock.lock();
        isBusy_ = false;
        changed_.notify_all();
    }
}

void Finisher::wait() {
    std::unique_lock lock(guard_);
    exitWaits_ = false;
    changed_.wait(lock, [this] { return waiting_.empty() && !isBusy_; });
}

} // namespace

int makeFolders(const std::string& path, unsigned mode) {
    if (mkdir(path.c_str(), mode) == 0)
        return 0;
    std::error_code fault;
    if (errno == EEXIST)
        return fs::is_directory(path, fault) ? 0 : fault ? fault.value() : ENOTDIR;
    const int error = errno;
    const std::size_t slash = path.rfind('/');
    if (error != ENOENT || slash == std::string::npos || slash == 0)
        return error;
    const int above = makeFolders(path.substr(0, slash), mode);
    if (above != 0)
        return above;
    return mkdir(path.c_str(), mode) == 0 || errno == EEXIST ? 0 : errno;
}

std::string resolveLinks(std::string path) {
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(path, error); ++i)
        path = (fs::path(path).parent_path() / fs::read_symlink(path, error)).string();
    return path;
}

int resolveOwnLinks(std::string& path) {
    struct stat link;
    for (int i = 0; i < kMostLinks && lstat(path.c_str(), &link) == 0 && S_ISLNK(link.st_mode);
         ++i) {
        if (link.st_uid != geteuid())
            return EACCES;
        std::error_code error;
        path = (fs::path(path).parent_path() / fs::read_symlink(path, error)).string();
    }
    return 0;
}

PendingFile::PendingFile(const std::string& destination, std::string_view content, unsigned mode)
    : destination_(destination), path_(destination + std::string(kPendingSuffix) + kUniqueEnd),
      error_(write(content, mode)), isThere_(error_ == 0) {}

PendingFile::~PendingFile() {
    if (isThere_)
        unlink(path_.c_str());
}

int PendingFile::write(std::string_view content, unsigned mode) {
    const int file = mkostemp(path_.data(), O_CLOEXEC);
    if (file < 0)
        return errno;
    int error = giveMode(file, mode) ? writeAll(file, content) : errno;
    if (error == 0 && fsync(file) != 0)
        error = errno;
    if (close(file) != 0 && error == 0)
        error = errno;
    if (error != 0)
        unlink(path_.c_str());
    return error;
}

int PendingFile::putInPlace() {
    if (rename(path_.c_str(), destination_.c_str()) != 0)
        return errno;
    isThere_ = false;
    finisher().finishSoon(destination_);
    return 0;
}

std::string keepAside(const std::string& path) {
    for (int n = 1; n <= kMostDamagedFiles; ++n) {
        std::string name = path + ".damaged-" + std::to_string(n);
        if (link(path.c_str(), name.c_str()) == 0)
            return name;
        if (errno == EEXIST)
            continue;
        // A file system without hard links: rename it instead.
        if (renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0)
            return name;
        if (errno != EEXIST)
            return {};
    }
    return {};
}
