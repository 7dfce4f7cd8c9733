// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/FileCache.h"

#include <algorithm>
#include <sys/stat.h>

using std::chrono::nanoseconds;
using std::chrono::seconds;

namespace {

constexpr seconds kCoarsestStep{2};

nanoseconds toDuration(const timespec& time) {
    return seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

} // namespace

bool FileState::isSettled() const {
    const nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return now - std::max(modified, changed) > kCoarsestStep;
}

FileState stateOfFile(const std::string& path) {
    struct stat status {};

    if (stat(path.c_str(), &status) != 0)
        return {};
    return {true,
            status.st_dev,
            status.st_ino,
            status.st_size,
            toDuration(status.st_mtim),
            toDuration(status.st_ctim)};
}
