// SPDX-License-Identifier: MIT
#include "agent/Accessibility.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusReply>

namespace accessibility {

namespace {

constexpr quint32 kScreenCoordinates = 0;

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");

std::vector<Object> objectsIn(const QVariant& answer) {
    std::vector<Object> all;
    const auto list = answer.value<QDBusArgument>();
    if (list.currentType() != QDBusArgument::ArrayType)
        return all;
    list.beginArray();
    while (!list.atEnd()) {
        Object child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.program >> path;
        list.endStructure();
        child.path = path.path();
        all.push_back(child);
    }
    return all;
}

Area areaIn(const QVariant& answer) {
    int left = 0, top = 0, width = 0, height = 0;
    const auto extents = answer.value<QDBusArgument>();
    if (extents.currentType() != QDBusArgument::StructureType)
        return {};
    extents.beginStructure();
    extents >> left >> top >> width >> height;
    extents.endStructure();
    return {double(left), double(top), double(width), double(height)};
}

QDBusMessage toTheSession(const char* interface, const char* method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"),
                                          QStringLiteral("/org/a11y/bus"), QLatin1String(interface),
                                          QLatin1String(method));
}

} // namespace

bool States::has(State state) const {
    const auto number = static_cast<quint32>(state);
    return number / 32 < static_cast<quint32>(bits.size()) &&
           (bits[number / 32] >> number % 32 & 1) != 0;
}

void wakePrograms() {
    auto enable = toTheSession("org.freedesktop.DBus.Properties", "Set");
    enable << QStringLiteral("org.a11y.Status") << QStringLiteral("IsEnabled")
           << QVariant::fromValue(QDBusVariant(true));
    QDBusConnection::sessionBus().call(enable, QDBus::Block, kCallMs);
}

Bus::Bus(int patienceMs)
    : name_(QStringLiteral("accessibility-%1").arg(++count)), bus_(name_), deadline_(patienceMs) {
    const QDBusReply<QString> address = QDBusConnection::sessionBus().call(
        toTheSession("org.a11y.Bus", "GetAddress"), QDBus::Block, patienceMs);
    bus_ = QDBusConnection::connectToBus(address.value(), name_);
}

Bus::~Bus() {
    QDBusConnection::disconnectFromBus(name_);
}

Object Bus::root() {
    return {QStringLiteral("org.a11y.atspi.Registry"),
            QStringLiteral("/org/a11y/atspi/accessible/root")};
}

QDBusPendingCall Bus::ask(const Object& object, const QString& interface, const char* method,
                          const QVariantList& arguments) const {
    if (isLate())
        return QDBusPendingCall::fromError(QDBusError(QDBusError::TimedOut, QString()));
    auto call = QDBusMessage::createMethodCall(object.program, object.path, interface,
                                               QLatin1String(method));
    call.setArguments(arguments);
    return bus_.asyncCall(call, kCallMs);
}

Asked<std::vector<Object>> Bus::children(const Object& object) const {
    return {ask(object, kAccessible, "GetChildren"), objectsIn};
}

Asked<Role> Bus::role(const Object& object) const {
    return {ask(object, kAccessible, "GetRole"),
            [](const QVariant& answer) { return Role(answer.toUInt()); }};
}

Asked<States> Bus::states(const Object& object) const {
    return {ask(object, kAccessible, "GetState"),
            [](const QVariant& answer) { return States{qdbus_cast<QList<quint32>>(answer)}; }};
}

Asked<std::string> Bus::name(const Object& object) const {
    return {ask(object, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                {kAccessible, QStringLiteral("Name")}),
            [](const QVariant& answer) {
                return answer.value<QDBusVariant>().variant().toString().toStdString();
            }};
}

Asked<Area> Bus::place(const Object& object) const {
    return {
        ask(object, QStringLiteral("org.a11y.atspi.Component"), "GetExtents", {kScreenCoordinates}),
        areaIn};
}

Asked<std::uint32_t> Bus::process(const Object& program) const {
    const Object bus{QStringLiteral("org.freedesktop.DBus"),
                     QStringLiteral("/org/freedesktop/DBus")};
    return {ask(bus, bus.program, "GetConnectionUnixProcessID", {program.program}),
            [](const QVariant& answer) { return std::uint32_t{answer.toUInt()}; }};
}

} // namespace accessibility
