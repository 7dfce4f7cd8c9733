// SPDX-License-Identifier: MIT
#include "agent/EventLog.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

EventLog::~EventLog() {
    if (file_ >= 0)
        close(file_);
}

bool EventLog::open(const char* path) {
    const int file = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY, 0600);
    if (file < 0)
        return false;
    file_ = file;
    return true;
}

void EventLog::append(const std::string& json) const {
    if (file_ < 0)
        return;
    const std::string line = json + '\n';
    ssize_t written;
    do
        written = write(file_, line.data(), line.size());
    while (written < 0 && errno == EINTR);
}
