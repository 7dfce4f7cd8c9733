// SPDX-License-Identifier: MIT
#include "agent/session/ScreenLock.h"
#include "tests/support/ApplicationTest.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

namespace {

const QString kSession = "/org/freedesktop/login1/session/_32";

/// Answers as logind does, as far as it is asked, and as a screen saver: all is locked.
class Desk : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        QVariant answer = true;
        if (call.member() == QLatin1String("GetSession"))
            answer.setValue(QDBusObjectPath(kSession));
        else if (call.member() == QLatin1String("Get"))
            answer.setValue(QDBusVariant(true));
        return bus.send(call.createReply(answer));
    }
};

/// The test's session bus is the system's, too.
class ScreenLockTest : public ApplicationTest<QCoreApplication> {
protected:
    ScreenLockTest() { bus_.registerVirtualObject("/", &desk_, QDBusConnection::SubPath); }

    void follow() {
        lock_ = std::make_unique<ScreenLock>([this](bool isLocked) { told_.push_back(isLocked); });
    }

    void send(const QString& path, const QString& interface, const QString& name,
              const QVariantList& values) {
        auto signal = QDBusMessage::createSignal(path, interface, name);
        signal.setArguments(values);
        bus_.send(signal);
    }

    void sendHint(bool isLocked, const QString& interface) {
        send(kSession, "org.freedesktop.DBus.Properties", "PropertiesChanged",
             {interface, QVariantMap{{"LockedHint", isLocked}}, QStringList()});
    }

    void sendActive(const QString& interface, bool isActive) {
        send("/ScreenSaver", interface, "ActiveChanged", {isActive});
    }

    /// The next thing told is that, and nothing comes after it.
    void expectNext(bool isLocked) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !told_.empty(); }));
        QTest::qWait(50);
        EXPECT_EQ(std::exchange(told_, {}), std::vector{isLocked});
    }

    // Read by the first connection that is made.
    const bool isSystemBus_ =
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    Desk desk_;
    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desk");
    std::vector<bool> told_;
    std::unique_ptr<ScreenLock> lock_;
};

TEST_F(ScreenLockTest, FollowsLogindsHint) {
    const QString login = "org.freedesktop.login1.Session";
    ASSERT_TRUE(bus_.registerService("org.freedesktop.login1"));
    follow();
    expectNext(true);
    sendHint(false, "org.freedesktop.login1.Other");
    sendHint(false, login);
    expectNext(false);
    sendHint(true, login);
    expectNext(true);
}

TEST_F(ScreenLockTest, FollowsScreenSaversAndOneThatGoesAwayLocksNothing) {
    const QString xfce = "org.xfce.ScreenSaver", gnome = "org.gnome.ScreenSaver";
    ASSERT_TRUE(bus_.registerService(xfce));
    follow();
    expectNext(true); // it is active already
    sendActive(xfce, false);
    expectNext(false);
    ASSERT_TRUE(bus_.registerService(gnome));
    sendActive(xfce, true);
    expectNext(true);
    sendActive(gnome, true); // both say so
    sendActive(gnome, false);
    bus_.unregisterService(xfce);
    expectNext(false);
}

} // namespace
