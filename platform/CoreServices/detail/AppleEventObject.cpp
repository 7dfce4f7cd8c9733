// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventObject.h"

#include "platform/CoreServices/detail/AppleEventInbox.h"
#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusVirtualObject>
#include <QPointer>
#include <QThread>

namespace {

/// Works on a thread of its own, so that messages don't pile up before the main thread.
class AppleEventObject final : public QDBusVirtualObject {
public:
    explicit AppleEventObject(AppleEventInbox& inbox) : inbox_(inbox) {}

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    AppleEventInbox& inbox_;
};

/// The application's. It ends with it.
class Receiver final : public QObject {
public:
    explicit Receiver(QObject* application)
        : QObject(application), inbox_(new AppleEventInbox(this)),
          object_(new AppleEventObject(*inbox_)) {
        object_->moveToThread(&thread_);
        connect(&thread_, &QThread::finished, object_, &QObject::deleteLater);
        thread_.start();
    }

    ~Receiver() override {
        thread_.quit();
        thread_.wait();
    }

    QDBusVirtualObject* object() const { return object_; }

private:
    AppleEventInbox* inbox_;
    AppleEventObject* object_;
    QThread thread_;
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
    std::optional<AppleEvent> event = eventOfMessage(message);
    if (!event)
        return answer(message.createErrorReply(QDBusError::LimitsExceeded,
                                               QStringLiteral("the event is too large")));
    if (!inbox_.put(std::move(*event), message, connection))
        return answer(message.createErrorReply(QDBusError::LimitsExceeded,
                                               QStringLiteral("too many events wait")));
    return true;
}

} // namespace

bool exportAppleEventObject() {
    static QPointer<Receiver> receiver;
    if (receiver)
        return true;
    receiver = new Receiver(QCoreApplication::instance());
    return sessionBus().registerVirtualObject(kEventObjectPath, receiver->object());
}
