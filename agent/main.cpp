// SPDX-License-Identifier: MIT
// The stand-in agent: a program that receives the pane's events and logs them.
//
// KORVEX_AGENT_LOG names the log file, which gets a JSON object per event. Without it they go to
// standard output. SIGUSR1 flips the on/off state; SIGTERM, SIGINT and SIGHUP end the program.

#include "agent/Agent.h"
#include "agent/UnixSignals.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

/// Seconds that the program may take to start. Qt can wait forever for a bus that goes at that
/// moment.
constexpr unsigned kStartSeconds = 10;

/// Whether this is the session's only agent. The bus gives a name to one owner, so of two that
/// start together one remains.
bool becomeTheAgent() {
    return findOtherApplication(fourCharCode("Krvx")) == kNoProcess &&
           QDBusConnection::sessionBus().registerService(QStringLiteral("org.korvex.Agent"));
}

/// The program ends with the session.
void quitWithTheBus() {
    QDBusConnection::sessionBus().connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                          QStringLiteral("org.freedesktop.DBus.Local"),
                                          QStringLiteral("Disconnected"),
                                          QCoreApplication::instance(), SLOT(quit()));
}

} // namespace

int main(int argc, char** argv) {
    UnixSignals signals{SIGUSR1, SIGTERM, SIGINT, SIGHUP};
    QCoreApplication application(argc, argv);

    alarm(kStartSeconds);

    EventLog log;
    const char* path = std::getenv("KORVEX_AGENT_LOG");
    if (path && !log.open(path)) {
        std::perror(path);
        return 1;
    }
    if (!QDBusConnection::sessionBus().isConnected()) {
        std::fputs("korvex-agent: there is no session bus\n", stderr);
        return 1;
    }
    if (!becomeTheAgent())
        return 0;
    quitWithTheBus();

    Agent agent(log);
    agent.installHandlers();
    if (!registerCurrentProcess(fourCharCode("APPL"), fourCharCode("Krvx")))
        return 1;
    agent.readStoredState();
    signals.deliverTo([&](int signal) {
        if (signal == SIGUSR1)
            agent.flip();
        else
            QCoreApplication::quit();
    });
    alarm(0);
    return QCoreApplication::exec();
}
