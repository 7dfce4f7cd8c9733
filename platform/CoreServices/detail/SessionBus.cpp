#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>

QDBusConnection sessionBus() {
    const QString name = QStringLiteral("org.korvex.processes");
    static bool made = false;
    if (!made && QCoreApplication::instance()) {
        made = true;
        // A connection by name delivers from the start; the default one holds messages back until
        // the event loop runs, and the first queries come before that.
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
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
