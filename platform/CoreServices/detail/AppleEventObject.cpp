#include "platform/CoreServices/detail/AppleEventObject.h"

#include "platform/CoreServices/detail/ProcessName.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QPointer>

#include <optional>

namespace {

/// A parameter as it travels: (uuay).
struct WireParameter {
    uint keyword = 0;
    uint type = 0;
    QByteArray bytes;
};

QDBusArgument& operator<<(QDBusArgument& argument, const WireParameter& parameter) {
    argument.beginStructure();
    argument << parameter.keyword << parameter.type << parameter.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, WireParameter& parameter) {
    argument.beginStructure();
    argument >> parameter.keyword >> parameter.type >> parameter.bytes;
    argument.endStructure();
    return argument;
}

const QString kObjectPath = QStringLiteral("/org/korvex/AppleEvents");
const QString kInterface = QStringLiteral("org.korvex.AppleEvents1");
const QString kMember = QStringLiteral("Event");
const QString kSignature = QStringLiteral("uua(uuay)");

AEDesc descOf(const WireParameter& parameter) {
    AEDesc desc;
    AECreateDesc(parameter.type, parameter.bytes.constData(),
                 static_cast<std::size_t>(parameter.bytes.size()), &desc);
    return desc;
}

/// The event that a call of the right signature carries; none when it exceeds the limits. The last
/// of several parameters of one keyword counts.
std::optional<AppleEvent> eventOfMessage(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    AppleEvent event;
    event.eventClass = arguments.at(0).toUInt();
    event.eventID = arguments.at(1).toUInt();
    const auto parameters = arguments.at(2).value<QDBusArgument>();
    std::size_t count = 0, bytes = 0;
    parameters.beginArray();
    while (!parameters.atEnd()) {
        WireParameter parameter;
        parameters >> parameter;
        bytes += static_cast<std::size_t>(parameter.bytes.size());
        if (++count > kMaxEventParameters || bytes > kMaxEventBytes)
            return std::nullopt;
        event.parameters[parameter.keyword] = descOf(parameter);
    }
    parameters.endArray();
    return event;
}

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
    const bool named = message.interface() == kInterface || message.interface().isEmpty();
    if (!named || message.member() != kMember)
        return false;
    const auto answer = [&](const QDBusMessage& reply) {
        if (message.isReplyRequired())
            connection.send(reply);
        return true;
    };
    if (message.signature() != kSignature)
        return answer(message.createErrorReply(QDBusError::InvalidArgs,
                                               QStringLiteral("Event takes %1").arg(kSignature)));
    const std::optional<AppleEvent> event = eventOfMessage(message);
    if (!event)
        return answer(message.createErrorReply(QDBusError::LimitsExceeded,
                                               QStringLiteral("the event is too large")));
    AppleEvent reply;
    return answer(message.createReply(int{dispatchAppleEvent(*event, &reply)}));
}

} // namespace

Q_DECLARE_METATYPE(WireParameter)

QDBusMessage messageOfEvent(const AppleEvent& event) {
    static const QMetaType elementType = qDBusRegisterMetaType<WireParameter>();
    QDBusArgument parameters;
    parameters.beginArray(elementType);
    for (const auto& [keyword, desc] : event.parameters)
        parameters << WireParameter{keyword, desc.descriptorType,
                                    QByteArray(reinterpret_cast<const char*>(desc.data.data()),
                                               static_cast<qsizetype>(desc.data.size()))};
    parameters.endArray();
    QDBusMessage message = QDBusMessage::createMethodCall(formatUniqueName(event.target),
                                                          kObjectPath, kInterface, kMember);
    message.setAutoStartService(false);
    message.setArguments(
        {uint{event.eventClass}, uint{event.eventID}, QVariant::fromValue(parameters)});
    return message;
}

bool exportAppleEventObject() {
    static QPointer<AppleEventObject> object;
    if (object)
        return true;
    object = new AppleEventObject(QCoreApplication::instance());
    return sessionBus().registerVirtualObject(kObjectPath, object);
}
