// SPDX-License-Identifier: MIT
#include "agent/x11/ScreenLock.h"
#include "tests/support/ApplicationTest.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

namespace {

const auto kSession = QStringLiteral("/org/freedesktop/login1/session/_32");

/// Answers as logind does, as far as it is asked, and as a screen saver.
class Desk : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        QVariant answer;
        if (call.member() == QLatin1String("GetSession"))
            answer.setValue(QDBusObjectPath(kSession));
        else if (call.member() == QLatin1String("Get") && call.path() == kSession)
            answer.setValue(QDBusVariant(hint));
        else if (call.member() == QLatin1String("GetActive"))
            answer = isActive;
        else
            return false;
        bus.send(call.createReply(answer));
        return true;
    }

    bool hint = false, isActive = false;
};

/// The test's session bus is the system's, too.
class ScreenLockTest : public ApplicationTest<QCoreApplication> {
protected:
    ScreenLockTest() {
        bus_.registerVirtualObject(QStringLiteral("/"), &desk_, QDBusConnection::SubPath);
    }

    void follow() {
        lock_ = std::make_unique<ScreenLock>([this](bool isLocked) { told_.push_back(isLocked); });
        // Whoever has followed before knows its answers by now.
        QTest::qWait(100);
    }

    void sendHint(bool isLocked, const QString& interface) {
        auto signal =
            QDBusMessage::createSignal(kSession, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << interface << QVariantMap{{QStringLiteral("LockedHint"), isLocked}}
               << QStringList();
        bus_.send(signal);
    }

    void sendActive(const QString& interface, bool isActive) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/ScreenSaver"), interface,
                                                 QStringLiteral("ActiveChanged"));
        signal << isActive;
        bus_.send(signal);
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
    QDBusConnection bus_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desk"));
    std::vector<bool> told_;
    std::unique_ptr<ScreenLock> lock_;
};

TEST_F(ScreenLockTest, FollowsLogindsHint) {
    const auto login = QStringLiteral("org.freedesktop.login1.Session");
    ASSERT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.login1")));
    desk_.hint = true;
    follow();
    expectNext(true);
    sendHint(false, QStringLiteral("org.freedesktop.login1.Other"));
    sendHint(false, login);
    expectNext(false);
    sendHint(true, login);
    expectNext(true);
}

TEST_F(ScreenLockTest, FollowsScreenSaversAndOneThatGoesAwayLocksNothing) {
    const QString names[] = {
        QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
        QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("org.xfce.ScreenSaver"),
        QStringLiteral("org.cinnamon.ScreenSaver")};
    follow();
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_TRUE(bus_.registerService(name));
        sendActive(name, true);
        expectNext(true);
        sendActive(name, false);
        expectNext(false);
    }
    sendActive(names[0], true);
    expectNext(true);
    sendActive(names[1], true); // both say so
    sendActive(names[1], false);
    bus_.unregisterService(names[0]);
    expectNext(false);
}

TEST_F(ScreenLockTest, OneThatIsActiveAtTheStartIsHeardOf) {
    ASSERT_TRUE(bus_.registerService(QStringLiteral("org.xfce.ScreenSaver")));
    desk_.isActive = true;
    follow();
    expectNext(true);
}

} // namespace
