// SPDX-License-Identifier: MIT
#include "host/DesktopApplication.h"

#include "host/ApplicationName.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>

namespace {

constexpr int kTimeoutMs = 2000;

struct Token {
    const char* key;      ///< in the platform data
    const char* variable; ///< in the environment of a started program
};

constexpr Token kActivationToken = {"activation-token", "XDG_ACTIVATION_TOKEN"};
constexpr Token kStartupID = {"desktop-startup-id", "DESKTOP_STARTUP_ID"};

/// Limits of what another program sends: entries that are looked at, and characters of a token.
/// Real ones have two entries and about a hundred characters.
constexpr int kMostEntries = 64;
constexpr qsizetype kLongestToken = 4096;

const auto kInterface = QStringLiteral("org.freedesktop.Application");

/// The tokens in a method's platform data, by key. Taking in all of a large map would take seconds.
QMap<QString, QString> tokensIn(const QVariant& platformData) {
    QMap<QString, QString> tokens;
    const auto data = platformData.value<QDBusArgument>();
    data.beginMap();
    for (int i = 0; i < kMostEntries && !data.atEnd(); ++i) {
        QString key;
        QDBusVariant value;
        data.beginMapEntry();
        data >> key >> value;
        data.endMapEntry();
        if (const QString text = value.variant().toString(); text.size() <= kLongestToken)
            tokens[key] = text;
    }
    data.endMap();
    return tokens;
}

class ApplicationObject final : public QDBusVirtualObject {
public:
    ApplicationObject(QObject* parent, std::function<void(const ShowRequest&)> onShow)
        : QDBusVirtualObject(parent), onShow_(std::move(onShow)) {}

    QString introspect(const QString&) const override {
        return QStringLiteral(
            "<interface name=\"org.freedesktop.Application\">"
            "<method name=\"Activate\"><arg type=\"a{sv}\" direction=\"in\"/></method>"
            "<method name=\"Open\"><arg type=\"as\" direction=\"in\"/>"
            "<arg type=\"a{sv}\" direction=\"in\"/></method>"
            "<method name=\"ActivateAction\"><arg type=\"s\" direction=\"in\"/>"
            "<arg type=\"av\" direction=\"in\"/><arg type=\"a{sv}\" direction=\"in\"/></method>"
            "</interface>");
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString call = message.member() + message.signature();
        const bool isAction = call == QLatin1String("ActivateActionsava{sv}");
        if (message.interface() != kInterface ||
            !(isAction || call == QLatin1String("Activatea{sv}") ||
              call == QLatin1String("Openasa{sv}")))
            return false;
        const QVariantList arguments = message.arguments();
        show(isAction ? arguments[0].toString() : QString(), tokensIn(arguments.constLast()));
        return !message.isReplyRequired() || bus.send(message.createReply());
    }

private:
    void show(const QString& section, const QMap<QString, QString>& tokens) {
        // Qt's Wayland windows read the activation token there.
        qputenv(kActivationToken.variable,
                tokens.value(QLatin1String(kActivationToken.key)).toUtf8());
        onShow_({section, tokens.value(QLatin1String(kStartupID.key))});
    }

    std::function<void(const ShowRequest&)> onShow_;
};

} // namespace

QVariantMap activationData() {
    QVariantMap data;
    for (const auto& [key, variable] : {kActivationToken, kStartupID})
        if (!qEnvironmentVariableIsEmpty(variable))
            data[QLatin1String(key)] = qEnvironmentVariable(variable);
    return data;
}

void exportDesktopApplication(QDBusConnection& bus,
                              std::function<void(const ShowRequest&)> onShow) {
    bus.registerVirtualObject(
        QLatin1String(kApplicationPath),
        new ApplicationObject(QCoreApplication::instance(), std::move(onShow)));
}

bool askDesktopApplication(const QDBusConnection& bus, const ShowRequest& request,
                           const QVariantMap& activation) {
    const bool plain = request.section.isEmpty();
    auto call = QDBusMessage::createMethodCall(
        QLatin1String(kApplicationName), QLatin1String(kApplicationPath), kInterface,
        plain ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    call.setAutoStartService(false);
    if (!plain)
        call << request.section << QVariantList();
    call << activation;
    return bus.call(call, QDBus::Block, kTimeoutMs).type() == QDBusMessage::ReplyMessage;
}
