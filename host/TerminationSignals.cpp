// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

int pipeEnds[2] = {-1, -1}; // to read, to write

void wakeEventLoop(int) {
    const int savedErrno = errno;
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
        notifier->setEnabled(false);
        onSignal();
    });
    struct sigaction action = {};
    action.sa_handler = wakeEventLoop;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}
