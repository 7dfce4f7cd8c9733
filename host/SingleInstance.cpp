// SPDX-License-Identifier: MIT
#include "host/SingleInstance.h"

#include "host/ApplicationName.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

constexpr int kTimeoutMs = 2000;

/// Whether the bus gave this connection the name.
bool requestName(const QDBusConnection& bus) {
    constexpr uint kDoNotQueue = 4;
    constexpr uint kPrimaryOwner = 1;
    auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << QLatin1String(kApplicationName) << kDoNotQueue;
    const QDBusMessage reply = bus.call(request, QDBus::Block, kTimeoutMs);
    return !reply.arguments().isEmpty() && reply.arguments().constFirst().toUInt() == kPrimaryOwner;
}

} // namespace

SingleInstance becomeSingleInstance(const ShowRequest& request, const QVariantMap& activation,
                                    std::function<void(const ShowRequest&)> onShow) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return SingleInstance::First;
    receiveWithoutPause(bus);
    exportDesktopApplication(bus, std::move(onShow));
    if (requestName(bus))
        return SingleInstance::First;
    if (askDesktopApplication(bus, request, activation))
        return SingleInstance::Second;
    // The other hangs or was about to end. In the latter case the name is free now.
    return requestName(bus) ? SingleInstance::First : SingleInstance::SecondToOneThatHangs;
}
