// SPDX-License-Identifier: MIT
#include "agent/Notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace {

/// The desktop's default time on the screen.
constexpr int kDefaultTime = -1;

quint32 shown = 0; ///< the number that the desktop gave the last one; 0: none

} // namespace

// By freedesktop.org’s desktop notifications, version 1.2.
void notify(const std::string& text) {
    const auto service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    message << QStringLiteral("Korvex") << shown << QStringLiteral("org.korvex.Preferences")
            << QStringLiteral("Korvex") << QString::fromStdString(text) << QStringList()
            << QVariantMap() << kDefaultTime;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher] {
        if (const QDBusPendingReply<quint32> reply = *watcher; !reply.isError())
            shown = reply.value();
        watcher->deleteLater();
    });
}
