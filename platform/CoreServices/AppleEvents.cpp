// SPDX-License-Identifier: MIT
#include "platform/CoreServices/AppleEvents.h"

#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/SessionBus.h"
#include "platform/CoreServices/detail/StartedApplications.h"

#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <bit>
#include <cstring>

// The bytes of integers are sent as they are in memory.
static_assert(std::endian::native == std::endian::little);

namespace {

OSErr copyOut(const AEDesc& desc, DescType desiredType, DescType* actualType, void* data,
              std::size_t maximumSize, std::size_t* actualSize) {
    if (desiredType != typeWildCard && desiredType != desc.descriptorType)
        return errAECoercionFail;
    if (actualType)
        *actualType = desc.descriptorType;
    if (actualSize)
        *actualSize = desc.data.size();
    if (data)
        std::copy_n(desc.data.begin(), std::min(maximumSize, desc.data.size()),
                    static_cast<UInt8*>(data));
    return noErr;
}

int millisecondsOfTicks(SInt32 ticks) {
    constexpr SInt32 defaultTicks = 60 * 60;
    const std::int64_t effective = ticks < 0 ? defaultTicks : ticks;
    return static_cast<int>(effective * 1000 / 60);
}

/// What became of an event whose sender waited.
OSErr resultOfReply(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("i"))
        return static_cast<OSErr>(std::clamp(reply.arguments().at(0).toInt(), -32768, 32767));
    if (reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner"))
        return procNotFound;
    switch (QDBusError(reply).type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return sessionBus().isConnected() ? errAETimeout : connectionInvalid;
    case QDBusError::Disconnected:
        return connectionInvalid;
    default:
        return errAEEventNotHandled;
    }
}

} // namespace

OSErr AECreateDesc(DescType type, const void* data, std::size_t size, AEDesc* result) {
    if (!result || (!data && size > 0))
        return paramErr;
    const auto* bytes = static_cast<const UInt8*>(data);
    *result = {type, {bytes, bytes + size}};
    return noErr;
}

OSErr AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEAddressDesc* target,
                         SInt16, SInt32, AppleEvent* result) {
    ProcessSerialNumber psn;
    if (!target || !result || target->descriptorType != typeProcessSerialNumber ||
        target->data.size() != sizeof psn)
        return paramErr;
    std::memcpy(&psn, target->data.data(), sizeof psn);
    *result = {eventClass, eventID, psn, {}};
    return noErr;
}

OSErr AEPutParamPtr(AppleEvent* event, AEKeyword keyword, DescType type, const void* data,
                    std::size_t size) {
    return event ? AECreateDesc(type, data, size, &event->parameters[keyword]) : paramErr;
}

OSErr AEGetParamPtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                    DescType* actualType, void* data, std::size_t maximumSize,
                    std::size_t* actualSize) {
    if (!event)
        return paramErr;
    const auto parameter = event->parameters.find(keyword);
    if (parameter == event->parameters.end())
        return errAEDescNotFound;
    return copyOut(parameter->second, desiredType, actualType, data, maximumSize, actualSize);
}

OSErr AEGetAttributePtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                        DescType* actualType, void* data, std::size_t maximumSize,
                        std::size_t* actualSize) {
    if (!event)
        return paramErr;
    if (keyword != keyEventIDAttr)
        return errAEDescNotFound;
    AEDesc id;
    AECreateDesc(typeType, &event->eventID, sizeof event->eventID, &id);
    return copyOut(id, desiredType, actualType, data, maximumSize, actualSize);
}

OSErr AESend(const AppleEvent* event, AppleEvent* reply, AESendMode mode, SInt32 timeOutInTicks) {
    if (!event)
        return paramErr;
    if (reply)
        *reply = {};
    const QDBusConnection bus = sessionBus();
    if (!bus.isConnected())
        return connectionInvalid;
    if (event->eventClass == kCoreEventClass && event->eventID == kAEQuitApplication)
        StartedApplications::shared().noteQuitRequest(event->target);
    const QDBusMessage message = messageOfEvent(*event);
    if ((mode & kAEWaitReply) == kAEWaitReply)
        return resultOfReply(bus.call(message, QDBus::Block, millisecondsOfTicks(timeOutInTicks)));
    return bus.send(message) ? noErr : connectionInvalid;
}

void sendThen(const AppleEvent& event, SInt32 timeOutInTicks, std::function<void(OSErr)> done) {
    auto* watcher = new QDBusPendingCallWatcher(
        sessionBus().asyncCall(messageOfEvent(event), millisecondsOfTicks(timeOutInTicks)));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, done = std::move(done)] {
                         watcher->deleteLater();
                         done(resultOfReply(watcher->reply()));
                     });
}

void flushSentEvents() {
    // When the bus answers, it has what was sent before.
    sessionBus().call(busMethod(QStringLiteral("GetId"), {}), QDBus::Block, kBusTimeout);
}
