// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

/// This process's connection to the session bus. Qt has another one for its own use. The first call
/// makes it. The main thread's event loop delivers incoming messages. Main thread only, after a
/// QCoreApplication has been made.
///
/// When there is no bus, or it has gone, the connection stays unconnected for good. Sending then
/// fails at once.
QDBusConnection sessionBus();

/// Lifts the connection's limit of 63 MiB for incoming messages that aren't handled yet. Beyond the
/// limit libdbus stops reading, and Qt 6.4 can't make it go on: one large message would leave the
/// connection deaf for good. The bus itself limits what it passes on.
void receiveWithoutPause(const QDBusConnection& connection);

/// Milliseconds that a call of the bus itself may take. Usually it is a tenth of one.
constexpr int kBusTimeout = 1000;

/// A method of the bus itself, as a message to send.
QDBusMessage busMethod(const QString& name, const QVariantList& arguments);
