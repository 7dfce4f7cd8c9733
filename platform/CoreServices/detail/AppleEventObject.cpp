// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventObject.h"

#include "platform/CoreServices/detail/AppleEventHandlers.h"
#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusVirtualObject>
#include <QPointer>

namespace {

class AppleEventObject final : public QDBusVirtualObject {
public:
    using QDBusVirtualObject::QDBusVirtualObject;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
};

QString AppleEventObject::introspect(const QString&) const {
    return QStringLiteral("<interface name=\"org.korvex.AppleEvents1\"><method name=\"Event\">"
                          "<arg name=\"class\" type=\"u\" direction=\"in\"/>"
                          "<arg name=\"id\" type=\"u\" direction=\"in\"/>"
                          "<arg name=\"parameters\" type=\"a(uuay)\" direction=\"in\"/>"
                          "<arg name=\"result\" type=\"i\" direction=\"out\"/>"
                          "</method></interface>");
}

bool AppleEventObject::handleMessage(const QDBusMessage& message,
                                     const QDBusConnection& connection) {
    const bool named = message.interface() == kEventInterface || message.interface().isEmpty();
    if (!named || message.member() != kEventMember)
        return false;
    const auto answer = [&](const QDBusMessage& reply) {
        if (message.isReplyRequired())
            connection.send(reply);
        return true;
    };
    if (message.signature() != kEventSignature)
        return answer(message.createErrorReply(
            QDBusError::InvalidArgs, QStringLiteral("Event takes %1").arg(kEventSignature)));
    const std::optional<AppleEvent> event = eventOfMessage(message);
    if (!event)
        return answer(message.createErrorReply(QDBusError::LimitsExceeded,
                                               QStringLiteral("the event is too large")));
    AppleEvent reply;
    return answer(message.createReply(int{dispatchAppleEvent(*event, &reply)}));
}

} // namespace

bool exportAppleEventObject() {
    static QPointer<AppleEventObject> object;
    if (object)
        return true;
    object = new AppleEventObject(QCoreApplication::instance());
    return sessionBus().registerVirtualObject(kEventObjectPath, object);
}
