// SPDX-License-Identifier: MIT
// Receives changes like an agent, and bare calls like any D-Bus program.

#include "bench/LinkPeer.h"

#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/Processes.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <cstdio>
#include <sys/mman.h>

namespace {

LinkNote* note;

void noteOne() {
    note->received = linkClock();
    ++note->count;
}

OSErr takeEvent(const AppleEvent*, AppleEvent*, void*) {
    noteOne();
    return noErr;
}

class Bare final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        if (message.arguments().at(0).toByteArray().isEmpty())
            return false;
        noteOne();
        return true;
    }
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    note = static_cast<LinkNote*>(
        mmap(nullptr, sizeof(LinkNote), PROT_READ | PROT_WRITE, MAP_SHARED, std::atoi(argv[1]), 0));
    AEInstallEventHandler(fourCharCode("Krvx"), typeWildCard, takeEvent, nullptr);
    registerCurrentProcess(fourCharCode("APPL"), fourCharCode("Krvx"));
    Bare bare;
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("bare"));
    bus.registerVirtualObject(QStringLiteral("/"), &bare);
    bus.registerService(QStringLiteral(LINK_PEER_NAME));
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
