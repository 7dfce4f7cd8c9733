// SPDX-License-Identifier: MIT
#include "agent/session/ScreenLock.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace {

/// Milliseconds.
constexpr int kTimeout = 5000;

const auto kLogin = QStringLiteral("org.freedesktop.login1");
const auto kSession = QStringLiteral("org.freedesktop.login1.Session");
const auto kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const auto kHint = QStringLiteral("LockedHint");

/// Each is the bus name, and the interface of an object that many paths have.
const struct {
    QString name, path;
} kSavers[] = {
    {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver")},
    {QStringLiteral("org.gnome.ScreenSaver"), QStringLiteral("/org/gnome/ScreenSaver")},
    {QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("/org/mate/ScreenSaver")},
    {QStringLiteral("org.xfce.ScreenSaver"), QStringLiteral("/org/xfce/ScreenSaver")},
    {QStringLiteral("org.cinnamon.ScreenSaver"), QStringLiteral("/org/cinnamon/ScreenSaver")},
};

/// Calls without waiting or starting a program; `take` gets the first value of the answer, if one
/// comes while `owner` lives.
void ask(QObject* owner, const QDBusConnection& bus, QDBusMessage call, const QVariantList& values,
         std::function<void(const QVariant&)> take) {
    call.setArguments(values);
    call.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, kTimeout), owner);
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, take = std::move(take)] {
            watcher->deleteLater();
            const QDBusMessage reply = watcher->reply();
            if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
                take(reply.arguments().constFirst());
        });
}

} // namespace

ScreenLock::ScreenLock(std::function<void(bool)> changed) : changed_(std::move(changed)) {
    followSavers();
    followHint();
}

void ScreenLock::followSavers() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    savers_.setConnection(bus);
    savers_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&savers_, &QDBusServiceWatcher::serviceUnregistered, this, &ScreenLock::saverLeft);
    for (const auto& [name, path] : kSavers) {
        savers_.addWatchedService(name);
        bus.connect(QString(), QString(), name, QStringLiteral("ActiveChanged"), this,
                    SLOT(saverChanged(bool, QDBusMessage)));
        ask(this, bus,
            QDBusMessage::createMethodCall(name, path, name, QStringLiteral("GetActive")), {},
            [this, name = name](const QVariant& answer) { set(name, answer.toBool()); });
    }
}

/// The session is the one that logind takes this process to be in, or the user's own on a display.
void ScreenLock::followHint() {
    const auto call = QDBusMessage::createMethodCall(
        kLogin, QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("GetSession"));
    const QString id = qEnvironmentVariable("XDG_SESSION_ID", QStringLiteral("auto"));
    ask(this, QDBusConnection::systemBus(), call, {id},
        [this](const QVariant& answer) { followSession(answer.value<QDBusObjectPath>().path()); });
}

void ScreenLock::followSession(const QString& path) {
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.connect(kLogin, path, kProperties, QStringLiteral("PropertiesChanged"), this,
                SLOT(hintChanged(QString, QVariantMap)));
    ask(this, bus, QDBusMessage::createMethodCall(kLogin, path, kProperties, QStringLiteral("Get")),
        {kSession, kHint}, [this](const QVariant& answer) {
            set(kLogin, answer.value<QDBusVariant>().variant().toBool());
        });
}

void ScreenLock::saverChanged(bool isActive, const QDBusMessage& signal) {
    set(signal.interface(), isActive);
}

void ScreenLock::hintChanged(const QString& interface, const QVariantMap& properties) {
    const auto hint = properties.find(kHint);
    if (interface == kSession && hint != properties.end())
        set(kLogin, hint->toBool());
}

void ScreenLock::saverLeft(const QString& service) {
    set(service, false);
}

void ScreenLock::set(const QString& source, bool isLocked) {
    const bool was = !locked_.isEmpty();
    if (isLocked)
        locked_.insert(source);
    else
        locked_.remove(source);
    if (was == locked_.isEmpty())
        changed_(!was);
}
