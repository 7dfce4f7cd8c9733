// SPDX-License-Identifier: MIT
#include "platform/CoreServices/StateFile.h"

#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"
#include "platform/CoreServices/ChangeWatch.h"

#include <QTimer>

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <optional>
#include <sstream>
#include <thread>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kFileMode = 0600;
constexpr unsigned kFolderMode = 0700;

fs::path stateFolder() {
    return xdgStateHome() + "/korvex";
}

/// When a process started, in clock ticks since the machine was started. Together with its ID it is
/// unique until the next boot. Zero when there is no such process.
unsigned long long startOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text);
    // Fields behind the program's name, which is in brackets and may hold any character: the state,
    // 18 numbers, and the start.
    std::istringstream fields(text.substr(std::min(text.size(), text.rfind(')') + 1)));
    std::string skipped;
    for (int i = 0; i < 19; ++i)
        fields >> skipped;
    unsigned long long start = 0;
    fields >> start;
    return start;
}

int replace(const fs::path& path, const std::string& content) {
    if (const int error = makeFolders(path.parent_path(), kFolderMode))
        return error;
    PendingFile file(path, content, kFileMode);
    return file.error() ? file.error() : file.putInPlace();
}

/// Writes and removes on its own thread. Never destroyed, since an exit handler may store.
class Writer {
public:
    Writer() { changed_.setSingleShot(true); }

    void write(std::string path, std::string content);
    void release(std::string path);
    void removeAll();
    FileOutcome outcome();

    const QTimer& changed() const { return changed_; }

private:
    void run();
    void note(const FileOutcome& outcome);

    std::mutex busy_; ///< held while the disk is written
    std::mutex guard_;
    std::condition_variable waiting_;
    std::optional<std::string> content_; ///< waits to be written
    FileOutcome outcome_;                ///< of what was written last
    QTimer changed_;                     ///< times out on the main thread
    std::string path_;
    std::vector<std::string> released_;
    bool isRunning_ = false;
};

void Writer::write(std::string path, std::string content) {
    const std::lock_guard lock(guard_);
    path_ = std::move(path);
    content_ = std::move(content);
    if (!isRunning_)
        std::thread([this] { run(); }).detach();
    isRunning_ = true;
    waiting_.notify_one();
}

void Writer::release(std::string path) {
    const std::lock_guard lock(guard_);
    released_.push_back(std::move(path));
}

void Writer::removeAll() {
    {
        const std::lock_guard lock(guard_);
        content_.reset();
    }
    const std::lock_guard written(busy_);
    const std::lock_guard lock(guard_);
    for (const std::string& path : std::exchange(released_, {}))
        unlink(path.c_str());
    if (!path_.empty())
        unlink(path_.c_str());
    note({});
}

FileOutcome Writer::outcome() {
    const std::lock_guard lock(guard_);
    return outcome_;
}

/// Under the guard.
void Writer::note(const FileOutcome& outcome) {
    if (std::exchange(outcome_, outcome).error != outcome.error)
        QMetaObject::invokeMethod(
            &changed_, [this] { changed_.start(0); }, Qt::QueuedConnection);
}

void Writer::run() {
    for (;;) {
        std::unique_lock lock(guard_);
        waiting_.wait(lock, [this] { return content_.has_value(); });
        lock.unlock();
        const std::lock_guard writing(busy_);
        lock.lock();
        if (!content_)
            continue;
        const std::string content = *std::exchange(content_, std::nullopt);
        const std::string path = path_;
        const std::vector<std::string> released = std::exchange(released_, {});
        lock.unlock();
        const int error = replace(path, content);
        lock.lock();
        note(outcomeOf(error, fs::path(path).parent_path()));
        if (error)
            continue;
        for (const std::string& left : released)
            unlink(left.c_str());
    }
}

Writer& writer() {
    static Writer& only = *new Writer;
    return only;
}

/// Whether the file has that name, complete or still being written, and such an owner.
bool belongsTo(StateFileOwner owner, const fs::path& file, const std::string& name) {
    pid_t process = 0;
    unsigned long long start = 0;
    int length = 0;
    const std::string own = file.filename(), whole = own.substr(0, own.find(kPendingSuffix));
    return whole.starts_with(name + '.') &&
           std::sscanf(whole.c_str() + name.size(), ".%d.%llu%n", &process, &start, &length) == 2 &&
           name.size() + static_cast<std::size_t>(length) == whole.size() &&
           (startOf(process) == start) == (owner == StateFileOwner::Running);
}

} // namespace

void keepStateFile(const std::string& name, std::string content) {
    const std::string owner = std::to_string(getpid()) + '.' + std::to_string(startOf(getpid()));
    writer().write(stateFolder() / (name + '.' + owner), std::move(content));
}

void removeStateFile() {
    writer().removeAll();
}

FileOutcome stateFileOutcome() {
    return writer().outcome();
}

ChangeWatch watchStateFile(std::function<void()> onChange) {
    return {&writer().changed(), std::move(onChange)};
}

std::vector<std::string> findStateFiles(const std::string& name, StateFileOwner owner) {
    std::error_code error;
    std::multimap<fs::file_time_type, std::string> found;
    fs::directory_iterator entry(stateFolder(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (std::error_code gone; belongsTo(owner, entry->path(), name))
            found.emplace(entry->last_write_time(gone), entry->path());
    std::vector<std::string> paths;
    for (auto& [time, path] : found)
        if (path.find(kPendingSuffix, path.rfind('/')) == path.npos)
            paths.push_back(std::move(path));
        else if (owner == StateFileOwner::Gone)
            unlink(path.c_str()); // it was never renamed
    return paths;
}

void releaseLeftStateFile(std::string path) {
    writer().release(std::move(path));
}
