// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <sys/types.h>

class QSocketNotifier;

/// Watches one process until it has ended, by a handle that no later process of the same number can
/// take over. A child of this process is reaped once it has ended.
class ProcessEnd {
public:
    /// `onEnded` is called once, from the event loop; it may delete this object. It is never called
    /// when there is no such process any more.
    ProcessEnd(pid_t pid, std::function<void()> onEnded);
    ~ProcessEnd();
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;

    pid_t pid() const { return pid_; }

    /// Asks the system, so that it is right also before the event loop has seen the end.
    bool hasEnded() const;

private:
    pid_t pid_;
    int file_; ///< of the process; negative when there was none
    QSocketNotifier* ended_ = nullptr;
};

/// Reaps a child of this process once it has ended, from the event loop.
void reapAtItsEnd(pid_t pid);
