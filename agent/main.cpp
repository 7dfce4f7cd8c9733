// SPDX-License-Identifier: MIT
// The agent: it scans the screen for people who press one or two switches. The pane tells it the
// settings; docs/agent-contract.md has what passes between them.
//
// KORVEX_AGENT_LOG names a file that gets a JSON object per event; without it nothing is logged.
// SIGUSR1 flips the on/off state; SIGTERM, SIGINT and SIGHUP end the program.

#include "agent/Link.h"
#include "agent/Notification.h"
#include "agent/Scanner.h"
#include "agent/UnixSignals.h"
#include "agent/mutter/MutterSession.h"
#include "agent/wayland/WaylandReleaser.h"
#include "agent/wayland/WaylandSession.h"
#include "agent/x11/XReleaser.h"
#include "agent/x11/XSession.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/Appearance.h"
#include "src/record/palactions.h"

#include <QApplication>
#include <QDBusConnection>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <unistd.h>

namespace {

/// Seconds that the program may take to start. Qt can wait forever for a bus that goes at that
/// moment.
constexpr unsigned kStartSeconds = 10;

constexpr OSType kAgentSignature = fourCharCode("Krvx");

/// From the agent's own folder to the pane's resources, which have the languages.
constexpr const char* kPaneResources = "/../../../../Resources";

/// A kind of session that can be scanned.
struct Way {
    bool (*isHere)();
    const char* qtPlatform; ///< with which the agent draws
    std::unique_ptr<Releaser> (*connectReleaser)();
    std::unique_ptr<Session> (*connect)(Guard& guard, std::string& fault);
};

bool isWayland() {
    wl_display* const probe =
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? nullptr : wl_display_connect(nullptr);
    if (probe)
        wl_display_disconnect(probe);
    return probe;
}

/// What the compositor offers decides. One that offers too little has its fault told.
std::unique_ptr<Session> connectWayland(Guard& guard, std::string& fault) {
    if (auto session = WaylandSession::connect(guard, fault))
        return session;
    return RemoteDesktop::isOffered() ? MutterSession::connect(guard, fault) : nullptr;
}

bool isX11() {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t* const probe = xcb_connect(nullptr, nullptr);
    const bool answers = !xcb_connection_has_error(probe);
    xcb_disconnect(probe);
    return answers;
}

/// The first one that is here is taken. XWayland counts as Wayland: it doesn't hear every press.
constexpr Way kWays[] = {
    {isWayland, "offscreen", connectWaylandReleaser, connectWayland},
    {isX11, "xcb", connectXReleaser, XSession::connect},
};

/// Null without a display.
const Way* wayHere() {
    const auto* const way = std::find_if(std::begin(kWays), std::end(kWays),
                                         [](const Way& each) { return each.isHere(); });
    return way == std::end(kWays) ? nullptr : way;
}

/// With a display it knows the screens, and draws the palette as the pane does. Neither variable is
/// for the programs that it starts.
std::unique_ptr<QCoreApplication> makeApplication(const Way* way, int& argc, char** argv) {
    if (!way)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", way->qtPlatform);
    qputenv("QT_QPA_PLATFORMTHEME", "generic"); // no toolkit is loaded for its colours
    auto application = std::make_unique<QApplication>(argc, argv);
    qunsetenv("QT_QPA_PLATFORM");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    return application;
}

QString programOf(const ProcessSerialNumber& psn) {
    pid_t pid = 0;
    return GetProcessPID(&psn, &pid) == noErr
               ? QFileInfo(QStringLiteral("/proc/%1/exe").arg(pid)).symLinkTarget()
               : QString();
}

/// Whether this is the session's only agent. The bus gives a name to one owner, so of two that
/// start together one remains.
bool becomeTheAgent() {
    const ProcessSerialNumber other = findApplication(kAgentSignature);
    if (other == kNoProcess)
        return QDBusConnection::sessionBus().registerService(QStringLiteral("org.korvex.Agent"));
    if (programOf(other) != QCoreApplication::applicationFilePath())
        notify(localized("Agent", "Another program scans already."));
    return false;
}

/// The program ends with the session.
void quitWithTheBus() {
    QDBusConnection::sessionBus().connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                          QStringLiteral("org.freedesktop.DBus.Local"),
                                          QStringLiteral("Disconnected"),
                                          QCoreApplication::instance(), SLOT(quit()));
}

/// Why nothing scans is told where a user looks for it: in the pane and on the desktop.
void tell(Link& link, const std::string& trouble) {
    link.setTrouble(trouble);
    notify(trouble);
}

/// What scans, if this session lets it.
struct Scanning {
    std::unique_ptr<Session> session;
    std::optional<Scanner> scanner;

    void begin(const Way& way, Link& link, Guard* guard) {
        std::string fault = localized("Agent", "Korvex can't scan: no process can be started.");
        if (guard)
            session = way.connect(*guard, fault);
        if (!session)
            return tell(link, fault);
        Appearance::follow(); // the palette does
        palutilUseBundle(CFBundleGetMainBundle);
        session->onEnd([] { QCoreApplication::exit(1); });
        scanner.emplace(link, *session, *guard);
    }
};

} // namespace

int main(int argc, char** argv) {
    UnixSignals signals{SIGUSR1, SIGTERM, SIGINT, SIGHUP};
    const Way* const way = wayHere();
    const std::string self =
        QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget().toStdString();
    const int restarts = argc > 1 ? std::atoi(argv[1]) : 0; // given by the guard
    const auto guard = way ? Guard::start(way->connectReleaser, {self.c_str(), restarts}) : nullptr;
    const auto application = makeApplication(way, argc, argv);

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
    loadLocalizations(QCoreApplication::applicationDirPath().toStdString() + kPaneResources);
    if (!becomeTheAgent())
        return 0;
    quitWithTheBus();

    Link link(log);
    link.installHandlers();
    if (!registerCurrentProcess(fourCharCode("APPL"), kAgentSignature))
        return 1;
    link.readSettings(restarts > 0);
    Scanning scanning;
    if (way)
        scanning.begin(*way, link, guard.get());
    signals.deliverTo([&](int signal) {
        if (signal == SIGUSR1)
            link.switchTo(!link.settings().on);
        else
            QCoreApplication::quit();
    });
    alarm(0);
    return QCoreApplication::exec();
}
