// org.a11y.Bus, as far as it tells whether assistive access is on: off at first. Each line of the
// input, "on" or "off", switches it. A line of output says that it is there.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

const QString kPath = QStringLiteral("/org/a11y/bus");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kStatus = QStringLiteral("org.a11y.Status");
const QString kIsEnabled = QStringLiteral("IsEnabled");

class Status final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != kProperties || message.member() != QLatin1String("Get") ||
            message.arguments() != QVariantList{kStatus, kIsEnabled})
            return false;
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(isOn))));
    }

    bool isOn = false;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Status status;
    bus.registerVirtualObject(kPath, &status);
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        std::string line;
        if (!std::getline(std::cin, line))
            QCoreApplication::quit();
        status.isOn = line == "on";
        auto changed =
            QDBusMessage::createSignal(kPath, kProperties, QStringLiteral("PropertiesChanged"));
        changed << kStatus << QVariantMap{{kIsEnabled, status.isOn}} << QStringList();
        bus.send(changed);
    });
    if (!bus.registerService(QStringLiteral("org.a11y.Bus")))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
