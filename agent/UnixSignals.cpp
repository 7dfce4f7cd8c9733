// SPDX-License-Identifier: MIT
#include "agent/UnixSignals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

UnixSignals::UnixSignals(std::initializer_list<int> signals) {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : signals)
        sigaddset(&set, signal);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    file_ = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

UnixSignals::~UnixSignals() {
    notifier_.reset();
    close(file_);
}

void UnixSignals::deliverTo(std::function<void(int)> handler) {
    notifier_ = std::make_unique<QSocketNotifier>(file_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                     [file = file_, handler = std::move(handler)] {
                         signalfd_siginfo info;
                         while (read(file, &info, sizeof info) == sizeof info)
                             handler(static_cast<int>(info.ssi_signo));
                     });
}
