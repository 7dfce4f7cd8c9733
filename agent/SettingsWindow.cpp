// SPDX-License-Identifier: MIT
#include "agent/SettingsWindow.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QVariantMap>

namespace {

/// The program, from the agent's own folder: beside an installed bundle, and in the build folder.
/// The last one is looked for in the PATH.
constexpr const char* kPrograms[] = {KORVEX_PROGRAM_FROM_AGENT, KORVEX_BUILT_PROGRAM_FROM_AGENT,
                                     "korvex-preferences"};

void startProgram() {
    const QDir here(QCoreApplication::applicationDirPath());
    for (const char* name : kPrograms) {
        const QString program = QString::fromUtf8(name);
        const bool isPath = program.contains(u'/');
        const QString path = isPath ? QDir::cleanPath(here.filePath(program)) : program;
        if ((!isPath || QFileInfo(path).isExecutable()) &&
            QProcess::startDetached(path, {"--section", "last"}))
            return;
    }
}

} // namespace

// By freedesktop.org’s D-Bus activation: the bus starts an installed program.
void showSettingsWindow() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.korvex.Preferences"), QStringLiteral("/org/korvex/Preferences"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
    message << QStringLiteral("last") << QVariantList() << QVariantMap();
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher] {
        if (watcher->isError())
            startProgram();
        watcher->deleteLater();
    });
}
