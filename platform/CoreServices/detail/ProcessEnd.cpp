// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/ProcessEnd.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <map>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

ProcessEnd::ProcessEnd(pid_t pid, std::function<void()> onEnded)
    : pid_(pid), file_(static_cast<int>(syscall(SYS_pidfd_open, pid, 0))) {
    if (file_ < 0 || !QCoreApplication::instance())
        return;
    ended_ = new QSocketNotifier(file_, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(ended_, &QSocketNotifier::activated,
                     [this, notifier = ended_, call = std::move(onEnded)] {
                         notifier->setEnabled(false);
                         hasEnded();
                         const auto callback = call; // it may delete this object
                         callback();
                     });
}

ProcessEnd::~ProcessEnd() {
    if (ended_) {
        ended_->setEnabled(false);
        ended_->disconnect();
        ended_->deleteLater();
    }
    if (file_ >= 0)
        close(file_);
}

bool ProcessEnd::hasEnded() const {
    pollfd state{file_, POLLIN, 0};
    if (file_ >= 0 && poll(&state, 1, 0) == 0)
        return false;
    siginfo_t info;
    waitid(P_PIDFD, static_cast<id_t>(file_), &info, WEXITED | WNOHANG); // fails for no child
    return true;
}

void reapAtItsEnd(pid_t pid) {
    static auto& children = *new std::map<pid_t, ProcessEnd>; // for as long as the program runs
    children.erase(pid); // of an earlier process with that number
    children.try_emplace(pid, pid, [pid] { children.erase(pid); });
}
