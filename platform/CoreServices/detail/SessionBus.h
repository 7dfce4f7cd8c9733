// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

/// This process's connection to the session bus, apart from the one that Qt uses for itself. The
/// first call makes it; messages that come in are delivered by the main thread's event loop. Main
/// thread only, and after a QCoreApplication has been made.
///
/// Not connected when there is no bus, and for good once the bus has gone; sending then fails at
/// once.
QDBusConnection sessionBus();

/// Lifts the connection's limit of 63 MiB for messages that came in and aren't handled yet. Beyond
/// it libdbus stops reading until some are handled, but Qt 6.4 can't start it again from the thread
/// that handles them: one large message from anybody would leave the connection deaf for good. The
/// bus itself bounds what it passes on.
void receiveWithoutPause(const QDBusConnection& connection);

/// How long one call of the bus itself may take, in milliseconds; usually it is a tenth of one.
constexpr int kBusTimeout = 1000;

/// A method of the bus itself, as a message to send.
QDBusMessage busMethod(const QString& name, const QVariantList& arguments);
