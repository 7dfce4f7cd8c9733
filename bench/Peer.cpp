// SPDX-License-Identifier: MIT
#include "bench/Peer.h"

#include "platform/CoreServices/Processes.h"

#include <QCoreApplication>

#include <sys/mman.h>
#include <unistd.h>

Peer::Peer() {
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

Peer::~Peer() {
    process_.kill();
    process_.waitForFinished();
}

void Peer::settle(std::uint64_t sent) const {
    while (note_->count.load() < sent)
        usleep(100);
}

Peer& peer() {
    static const bool registered =
        registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
    static Peer instance;
    (void)registered;
    return instance;
}
