// SPDX-License-Identifier: MIT
// A change on its way to the agent. Floor: bare D-Bus calls.

#include "bench/Figures.h"
#include "bench/Peer.h"
#include "src/link/Daemon.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

void sendChange() {
    daemonSendChanges(0x200, true);
}

QDBusConnection bareConnection() {
    static const auto connection =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("bare"));
    return connection;
}

void sendBare() {
    QDBusMessage message =
        QDBusMessage::createMethodCall(QStringLiteral(LINK_PEER_NAME), QStringLiteral("/"),
                                       QStringLiteral("org.example.Bare"), QStringLiteral("Take"));
    message.setArguments({QByteArray(sizeof(PrefsRecord), '\0')});
    bareConnection().send(message);
}

double changeOneWay() {
    return peer().oneWay(sendChange);
}

double bareOneWay() {
    return peer().oneWay(sendBare);
}

double changeOnMainThread() {
    const std::uint64_t before = peer().note().count.load();
    const double seconds = secondsOf(sendChange);
    peer().settle(before + 1);
    return seconds;
}

double busRoundTrip() {
    peer();
    const auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    return secondsOf([&] { bareConnection().call(message, QDBus::Block, 1000); });
}

} // namespace

void addLinkFigures() {
    addFigure("a change until the agent's handler has it", {Limit::Times, 2}, changeOneWay,
              bareOneWay);
    addFigure("main-thread time of a change", {Limit::Times, 2}, changeOnMainThread, busRoundTrip);
}
