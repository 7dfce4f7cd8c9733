// SPDX-License-Identifier: MIT
// A change on its way to the agent, against bare D-Bus calls.

#include "bench/Figures.h"
#include "bench/LinkPeer.h"
#include "platform/CoreServices/Processes.h"
#include "src/prefpane/Daemon.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// The process that receives what is measured, and the memory in which it notes when.
class Peer {
public:
    Peer() {
        QCoreApplication::processEvents();
        const int file = memfd_create("link", 0);
        note_ = static_cast<LinkNote*>(
            ftruncate(file, sizeof(LinkNote)) == 0
                ? mmap(nullptr, sizeof(LinkNote), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0)
                : MAP_FAILED);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(LINK_PEER), {QString::number(file)});
        process_.waitForReadyRead(10'000); // it says when it takes part
        close(file);
    }

    ~Peer() {
        process_.kill();
        process_.waitForFinished();
    }

    /// Seconds from the call of `send` until the peer has what it sends.
    template <class Send>
    double oneWay(Send&& send) {
        const auto before = note_->count.load();
        const auto start = linkClock();
        send();
        while (note_->count.load() == before)
            if (linkClock() - start > 1'000'000'000)
                return -1;
        return static_cast<double>(note_->received - start) * 1e-9;
    }

    /// Waits until the peer has everything that was sent.
    void settle(std::uint64_t sent) {
        while (note_->count.load() < sent)
            usleep(100);
    }

    LinkNote& note() { return *note_; }

private:
    QProcess process_;
    LinkNote* note_;
};

Peer& peer() {
    static const bool registered =
        registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
    static Peer instance;
    (void)registered;
    return instance;
}

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
