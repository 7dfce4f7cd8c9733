// SPDX-License-Identifier: MIT
#include "host/Arguments.h"
#include "host/BusProbe.h"
#include "host/Command.h"
#include "host/PaneHost.h"
#include "host/SingleInstance.h"
#include "host/TerminationSignals.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreServices/Processes.h"
#include "platform/Support/Appearance.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QTimer>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <utility>

namespace {

/// Milliseconds between typed letters that look up one list entry. The usual 400 are too few for a
/// slow hand.
constexpr int kSlowTypingMs = 2000;

/// Milliseconds that a service waits for the request that it was started for.
constexpr int kServicePatienceMs = 10'000;

enum ExitStatus { kDone = 0, kFailed = 1, kMisused = 2 };

constexpr const char* kPlatformVariable = "QT_QPA_PLATFORM";

/// Qt's platform. Null without a display. X11 comes first, because on Wayland no program can place
/// a window over all screens.
const char* choosePlatform(Arguments::Task task) {
    if (task == Arguments::Task::Check)
        return "offscreen";
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        return "xcb;wayland";
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? nullptr : "wayland";
}

void complain(const std::string& message) {
    std::fprintf(stderr, "korvex-preferences: %s\n", message.c_str());
}

int printUsage(int argc, char** argv, std::FILE* file, ExitStatus status) {
    QCoreApplication application(argc, argv);
    loadOwnLocalizations();
    std::fputs(localized("Host", kUsage).c_str(), file);
    return status;
}

bool load(PaneHost& host, const std::string& bundle, Arguments::Task task) {
    std::vector<std::string> errors;
    if (bundle.empty())
        errors.push_back(localized("Host", "Korvex.prefPane: not found beside this program"));
    else if (host.load(bundle, errors) && task == Arguments::Task::Check)
        host.checkWindows(errors);
    for (const std::string& error : errors)
        std::fprintf(stderr, "%s\n", error.c_str());
    return errors.empty();
}

/// The pane's host. It opens the pane at the first request.
struct Visit {
    PaneHost host;
    bool isReady = false;
    bool isOpen = false;

    /// Does nothing before `isReady`.
    void comply(const ShowRequest& request) {
        if (!isReady)
            return;
        if (std::exchange(isOpen, true))
            host.bringToFront();
        else
            host.open();
        host.comply(request);
    }

    void handleEnds() {
        QApplication::setQuitOnLastWindowClosed(false);
        handleTerminationSignals([this] { isOpen ? host.end() : QCoreApplication::quit(); });
        QObject::connect(qApp, &QGuiApplication::commitDataRequest, [this] {
            if (isOpen)
                host.store();
        });
    }
};

/// Shows the pane until its window is closed; a service shows it at the first request.
int show(const Arguments& arguments, const QVariantMap& activation) {
    Visit visit;
    const auto comply = [&](const ShowRequest& request) { visit.comply(request); };
    const ShowRequest request{QString::fromStdString(arguments.section), {}};
    switch (becomeSingleInstance(request, activation, comply)) {
    case SingleInstance::First:
        break;
    case SingleInstance::Second:
        return kDone;
    case SingleInstance::SecondToOneThatHangs:
        complain(localized("Host", "it is open already, but doesn't answer"));
        return kFailed;
    }
    registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
    const std::string& bundle = arguments.bundle;
    if (!load(visit.host, bundle.empty() ? findOwnBundle() : bundle, Arguments::Task::Show))
        return kFailed;

    QApplication::setKeyboardInputInterval(kSlowTypingMs);
    visit.handleEnds();
    visit.isReady = true;
    if (arguments.task == Arguments::Task::Show)
        visit.comply(request);
    else
        QTimer::singleShot(kServicePatienceMs, [&] {
            if (!visit.isOpen)
                QCoreApplication::quit();
        });
    return QApplication::exec();
}

/// Qt knows a language's direction only if it has its own texts in that language.
void followDirection() {
    const QFileInfo folder(QString::fromStdString(localizationFolder()));
    if (const QString language = folder.completeBaseName(); !language.isEmpty())
        QApplication::setLayoutDirection(QLocale(language).textDirection());
}

int run(const Arguments& arguments, int argc, char** argv) {
    const bool isChosen = qEnvironmentVariableIsSet(kPlatformVariable);
    const char* platform = isChosen ? "" : choosePlatform(arguments.task);
    if (!platform) {
        std::fputs("korvex-preferences: there is no display\n", stderr);
        return kFailed;
    }
    const QVariantMap activation = activationData();
    leaveOutHangingBus();
    if (!isChosen)
        qputenv(kPlatformVariable, platform);
    QApplication application(argc, argv);
    if (!isChosen)
        qunsetenv(kPlatformVariable); // programs started from here choose for themselves
    if (arguments.task != Arguments::Task::Check)
        loadOwnLocalizations();
    // QApplication sets the user's locale. Texts are made with a decimal point; localizedNumbers
    // replaces it.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("korvex-preferences"));
    QApplication::setDesktopFileName(QStringLiteral("org.korvex.Preferences"));
    // For window managers that don't read desktop entries.
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.korvex.Preferences")));
    if (arguments.task != Arguments::Task::Check) {
        followDirection();
        Appearance::follow();
        return show(arguments, activation);
    }
    PaneHost host;
    return load(host, arguments.bundle, Arguments::Task::Check) ? kDone : kFailed;
}

} // namespace

int main(int argc, char** argv) {
    // Writing to a reader that is gone must not end the program before it has saved.
    std::signal(SIGPIPE, SIG_IGN);
    const Arguments arguments = parseArguments(argc, argv);
    switch (arguments.task) {
    case Arguments::Task::Command:
        return runCommand(argc, argv);
    case Arguments::Task::Help:
        return printUsage(argc, argv, stdout, kDone);
    case Arguments::Task::Version:
        std::puts("korvex-preferences " KORVEX_VERSION);
        return kDone;
    case Arguments::Task::Misuse:
        return printUsage(argc, argv, stderr, kMisused);
    case Arguments::Task::Show:
    case Arguments::Task::Serve:
    case Arguments::Task::Check:
        return run(arguments, argc, argv);
    }
    return kMisused;
}
