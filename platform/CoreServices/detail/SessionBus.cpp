// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>

#include <climits>
#include <dlfcn.h>

void receiveWithoutPause(const QDBusConnection& connection) {
    using SetLimit = void (*)(void* connection, long bytes);
    // Of the library that Qt uses; Qt passes it on only as a pointer.
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
        // A connection by name delivers from the start; the default one holds messages back until
        // the event loop runs, and the first queries come before that.
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
