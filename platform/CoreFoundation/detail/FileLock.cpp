// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/FileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 2s;
constexpr auto kInterval = 10ms;

int lock(int file) {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return 0; // network and FUSE file systems may have no locks
        if (std::chrono::steady_clock::now() >= deadline)
            return EWOULDBLOCK;
        std::this_thread::sleep_for(kInterval);
    }
    return 0;
}

} // namespace

FileLock::FileLock(const std::string& path, unsigned mode)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, mode)),
      error_(file_ >= 0 ? lock(file_) : errno) {}

FileLock::~FileLock() {
    if (file_ >= 0)
        close(file_);
}
