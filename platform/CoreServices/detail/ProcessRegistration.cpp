// SPDX-License-Identifier: MIT
#include "platform/CoreServices/Processes.h"
#include "platform/CoreServices/detail/AppleEventObject.h"
#include "platform/CoreServices/detail/ProcessName.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QDBusReply>

#include <unistd.h>

namespace {

/// Whether this connection has the name.
bool requestName(const QString& busName) {
    constexpr uint doNotQueue = 4, primaryOwner = 1, alreadyOwner = 4;
    const QDBusReply<uint> reply = sessionBus().call(
        busMethod(QStringLiteral("RequestName"), {busName, doNotQueue}), QDBus::Block, kBusTimeout);
    return reply.isValid() && (reply.value() == primaryOwner || reply.value() == alreadyOwner);
}

} // namespace

// Not in Processes.cpp: that would be a circle. Taking part includes receiving events, and sending
// events looks up processes.
bool registerCurrentProcess(OSType type, OSType signature) {
    // The object first: events may come as soon as others see the name.
    return sessionBus().isConnected() && exportAppleEventObject() &&
           requestName(formatProcessName({type, signature, getpid()}));
}
