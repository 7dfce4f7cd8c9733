// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Processes.h"
#include "platform/CoreServices/detail/AppleEventObject.h"
#include "platform/CoreServices/detail/ProcessName.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QDBusReply>

#include <unistd.h>

namespace {

/// Whether the bus gave this connection the name, or had given it before.
bool requestName(const QString& busName) {
    constexpr uint doNotQueue = 4, primaryOwner = 1, alreadyOwner = 4;
    const QDBusReply<uint> reply = sessionBus().call(
        busMethod(QStringLiteral("RequestName"), {busName, doNotQueue}), QDBus::Block, kBusTimeout);
    return reply.isValid() && (reply.value() == primaryOwner || reply.value() == alreadyOwner);
}

} // namespace

// Apart from Processes.cpp: a process that takes part receives events, and those who send events
// look up processes.
bool registerCurrentProcess(OSType type, OSType signature) {
    // The object first: events may come as soon as the name can be seen.
    return sessionBus().isConnected() && exportAppleEventObject() &&
           requestName(formatProcessName({type, signature, getpid()}));
}
