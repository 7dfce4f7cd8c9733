#include "host/SingleInstance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <cstdio>

namespace {

const auto kService = QStringLiteral("org.korvex.Preferences");
const auto kPath = QStringLiteral("/org/korvex/Preferences");
const auto kInterface = QStringLiteral("org.freedesktop.Application");
const auto kActivate = QStringLiteral("Activate");
const auto kTokenKey = QStringLiteral("activation-token");
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr int kTimeoutMs = 2000;

class ApplicationObject final : public QDBusVirtualObject {
public:
    explicit ApplicationObject(std::function<void()> onActivate)
        : onActivate_(std::move(onActivate)) {}

    QString introspect(const QString&) const override {
        return QStringLiteral("<interface name=\"org.freedesktop.Application\">"
                              "<method name=\"Activate\">"
                              "<arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/>"
                              "</method></interface>");
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.interface() != kInterface || message.member() != kActivate ||
            message.signature() != QLatin1String("a{sv}"))
            return false;
        const auto data = qdbus_cast<QVariantMap>(message.arguments().constFirst());
        // Where Qt's Wayland windows look for the right to come to the front.
        qputenv(kTokenVariable, data.value(kTokenKey).toString().toUtf8());
        connection.send(message.createReply());
        onActivate_();
        return true;
    }

private:
    std::function<void()> onActivate_;
};

/// Whether the bus gave this connection the name.
bool requestName(const QDBusConnection& bus) {
    constexpr uint kDoNotQueue = 4;
    constexpr uint kPrimaryOwner = 1;
    auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << kService << kDoNotQueue;
    const QDBusMessage reply = bus.call(request, QDBus::Block, kTimeoutMs);
    return !reply.arguments().isEmpty() && reply.arguments().constFirst().toUInt() == kPrimaryOwner;
}

/// Whether the other instance answered.
bool activateOther(const QDBusConnection& bus) {
    auto request = QDBusMessage::createMethodCall(kService, kPath, kInterface, kActivate);
    request.setAutoStartService(false);
    request << QVariantMap{{kTokenKey, qEnvironmentVariable(kTokenVariable)}};
    return bus.call(request, QDBus::Block, kTimeoutMs).type() == QDBusMessage::ReplyMessage;
}

} // namespace

bool becomeSingleInstance(std::function<void()> onActivate) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return true;
    static ApplicationObject object(std::move(onActivate));
    bus.registerVirtualObject(kPath, &object);
    if (requestName(bus))
        return true;
    if (activateOther(bus))
        return false;
    // Either it hangs or it was about to end; in that case the name is free now.
    if (requestName(bus))
        return true;
    std::fputs("korvex-preferences: it is open already, but doesn't answer\n", stderr);
    return false;
}
