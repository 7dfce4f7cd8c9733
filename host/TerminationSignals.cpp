// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// Seconds until an event loop that never comes round is ended. Changes are in a file by then, and
/// the next visit reads it.
constexpr unsigned kPatience = 5;

int pipeEnds[2] = {-1, -1}; // to read, to write

void wakeEventLoop(int) {
    const int savedErrno = errno;
    alarm(kPatience);
    // If the pipe is full, there already is a wake-up call in it.
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], "", 1);
    errno = savedErrno;
}

} // namespace

void handleTerminationSignals(std::function<void()> onSignal) {
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier =
        new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, [notifier, onSignal] {
        alarm(0);
        notifier->setEnabled(false);
        onSignal();
    });
    std::signal(SIGALRM, [](int) { _exit(EXIT_FAILURE); });
    struct sigaction action = {};
    action.sa_handler = wakeEventLoop;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}
