// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>

#include <climits>
#include <dlfcn.h>

void receiveWithoutPause(const QDBusConnection& connection) {
    using SetLimit = void (*)(void* connection, long bytes);
    // This is libdbus, which Qt uses. Qt gives access to it by a pointer only.
    static const auto setLimit =
        reinterpret_cast<SetLimit>(dlsym(RTLD_DEFAULT, "dbus_connection_set_max_received_size"));
    if (setLimit && connection.isConnected())
        setLimit(connection.internalPointer(), LONG_MAX);
}

QDBusConnection sessionBus() {
    const QString name = QStringLiteral("org.korvex.processes");
    static bool made = false;
    if (!made && QCoreApplication::instance()) {
        made = true;
        // A named connection delivers messages from the start. The default one holds them back
        // until the event loop runs, and the first queries come earlier.
        receiveWithoutPause(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name));
    }
    return QDBusConnection(name);
}

QDBusMessage busMethod(const QString& name, const QVariantList& arguments) {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage message =
        QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, name);
    message.setArguments(arguments);
    return message;
}
