// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <sys/types.h>

class QSocketNotifier;

/// Watches a process until it ends. A later process with the same ID isn't mistaken for it. A child
/// of this process is reaped when it ends.
class ProcessEnd {
public:
    /// `onEnded` is called once, from the event loop. It may delete this object. It is never called
    /// when the process is already gone.
    ProcessEnd(pid_t pid, std::function<void()> onEnded);
    ~ProcessEnd();
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;

    pid_t pid() const { return pid_; }

    /// Asks the system. So it is right even before the event loop has seen the end.
    bool hasEnded() const;

private:
    pid_t pid_;
    int file_; ///< of the process; negative when there was none
    QSocketNotifier* ended_ = nullptr;
};

/// From the event loop, reaps a child of this process when it ends.
void reapAtItsEnd(pid_t pid);
