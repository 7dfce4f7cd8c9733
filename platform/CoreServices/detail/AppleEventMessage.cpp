// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventMessage.h"

#include "platform/CoreServices/detail/ProcessName.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace {

/// A parameter in the message: (uuay).
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

AEDesc descOf(const WireParameter& parameter) {
    return {parameter.type, {parameter.bytes.begin(), parameter.bytes.end()}};
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
    QDBusMessage message = QDBusMessage::createMethodCall(
        formatUniqueName(event.target), kEventObjectPath, kEventInterface, kEventMember);
    message.setAutoStartService(false);
    message.setArguments(
        {uint{event.eventClass}, uint{event.eventID}, QVariant::fromValue(parameters)});
    return message;
}

std::optional<AppleEvent> eventOfMessage(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    AppleEvent event;
    event.eventClass = arguments.at(0).toUInt();
    event.eventID = arguments.at(1).toUInt();
    const auto parameters = arguments.at(2).value<QDBusArgument>();
    std::size_t count = 0, bytes = 0;
    parameters.beginArray();
    while (!parameters.atEnd() && count <= kMaxEventParameters && bytes <= kMaxEventBytes) {
        WireParameter parameter;
        parameters >> parameter;
        ++count;
        bytes += static_cast<std::size_t>(parameter.bytes.size());
        event.parameters[parameter.keyword] = descOf(parameter);
    }
    parameters.endArray(); // in any case: until then the argument holds the whole message
    if (count > kMaxEventParameters || bytes > kMaxEventBytes)
        return std::nullopt;
    return event;
}
