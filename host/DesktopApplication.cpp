// SPDX-License-Identifier: MIT
#include "host/DesktopApplication.h"

#include "host/ApplicationName.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>

namespace {

constexpr int kTimeoutMs = 2000;

struct Token {
    const char* key;      ///< in the platform data
    const char* variable; ///< in the environment of a started program
};

constexpr Token kActivationToken = {"activation-token", "XDG_ACTIVATION_TOKEN"};
constexpr Token kStartupID = {"desktop-startup-id", "DESKTOP_STARTUP_ID"};

class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationAdaptor(QObject* object, std::function<void(const ShowRequest&)> onShow)
        : QDBusAbstractAdaptor(object), onShow_(std::move(onShow)) {}

public Q_SLOTS:

    void Activate(const QVariantMap& platformData) { show({}, platformData); }

    void Open(const QStringList&, const QVariantMap& platformData) { show({}, platformData); }

    void ActivateAction(const QString& name, const QVariantList&, const QVariantMap& platformData) {
        show(name, platformData);
    }

private:
    void show(const QString& section, const QVariantMap& platformData) {
        const auto text = [&](const Token& token) {
            return platformData.value(QLatin1String(token.key)).toString();
        };
        // Qt's Wayland windows read the activation token there.
        qputenv(kActivationToken.variable, text(kActivationToken).toUtf8());
        onShow_({section, text(kStartupID)});
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
    auto* object = new QObject(QCoreApplication::instance());
    new ApplicationAdaptor(object, std::move(onShow));
    bus.registerObject(QLatin1String(kApplicationPath), object);
}

bool askDesktopApplication(const QDBusConnection& bus, const ShowRequest& request,
                           const QVariantMap& activation) {
    const bool plain = request.section.isEmpty();
    auto call = QDBusMessage::createMethodCall(
        QLatin1String(kApplicationName), QLatin1String(kApplicationPath),
        QStringLiteral("org.freedesktop.Application"),
        plain ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    call.setAutoStartService(false);
    if (!plain)
        call << request.section << QVariantList();
    call << activation;
    return bus.call(call, QDBus::Block, kTimeoutMs).type() == QDBusMessage::ReplyMessage;
}

#include "DesktopApplication.moc"
