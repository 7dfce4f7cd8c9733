// SPDX-License-Identifier: MIT
#include "tests/support/AgentTest.h"
#include "tests/support/SignalProcess.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QProcess>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using testing::AllOf;
using testing::HasSubstr;

namespace {

constexpr OSType kHost = fourCharCode("sprf");

/// The host as a program with the real pane, and the agent.
class HostLifeTest : public AgentTest<QCoreApplication> {
protected:
    HostLifeTest() { registerCurrentProcess(fourCharCode("APPL"), fourCharCode("test")); }

    ~HostLifeTest() override {
        host_.kill();
        host_.waitForFinished();
    }

    /// Starts the agent, then the host, and waits until the pane is open.
    void open() {
        startAgent();
        start();
        const QJsonArray psn = agentLog_.next()["psn"].toArray();
        pane_ = {static_cast<UInt32>(psn.at(0).toInteger()),
                 static_cast<UInt32>(psn.at(1).toInteger())};
        ASSERT_TRUE(QTest::qWaitFor([this] { return findProcess(kHost) == pane_; }, 20'000));
    }

    void start() { host_.start(QStringLiteral(KORVEX_HOST), QStringList()); }

    /// The exit status. -1 when it crashed or still runs.
    int waitForEnd() {
        const bool ended =
            QTest::qWaitFor([&] { return host_.state() == QProcess::NotRunning; }, 20'000);
        return ended && host_.exitStatus() == QProcess::NormalExit ? host_.exitCode() : -1;
    }

    QProcess host_;
    ProcessSerialNumber pane_;
};

class HostSignalTest : public testing::WithParamInterface<int>, public HostLifeTest {};

TEST_P(HostSignalTest, PutsThePaneAwayAndStoresWhatWasChanged) {
    for (const bool changed : {false, true}) {
        SCOPED_TRACE(changed);
        open();
        if (changed) { // as the agent reports that scanning was turned off
            EXPECT_EQ(sendAndWait(makeEvent(pane_, fourCharCode("Krvx"), fourCharCode("PPon"),
                                            {{keyDirectObject, {typeBoolean, {0}}}})),
                      noErr);
        }
        signalProcess(host_.processId(), GetParam());
        EXPECT_EQ(waitForEnd(), 0);
        EXPECT_EQ(agentLog_.nextName(), "PPcl");
        EXPECT_EQ(fs::exists(storedFile()), changed);
    }
    EXPECT_THAT(readFile(storedFile()), AllOf(HasSubstr("<key>on</key>\n\t<string>no</string>"),
                                              HasSubstr("<key>palette.buttonActions</key>")));
}

INSTANTIATE_TEST_SUITE_P(Signals, HostSignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

/// A stand-in for a first instance.
class FirstInstance final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls << message;
        return !answers || bus.send(message.createReply());
    }

    bool answers = true;
    QList<QDBusMessage> calls;
};

TEST_F(HostLifeTest, ASecondStartAsksTheFirstToComeForward) {
    setenv("XDG_ACTIVATION_TOKEN", "a token", 1);
    FirstInstance first;
    auto bus = QDBusConnection::sessionBus();
    ASSERT_TRUE(bus.registerVirtualObject("/org/korvex/Preferences", &first) &&
                bus.registerService("org.korvex.Preferences"));
    for (const bool answers : {true, false}) {
        first.answers = answers;
        first.calls.clear();
        start();
        EXPECT_EQ(waitForEnd(), answers ? 0 : 1);
        EXPECT_EQ(host_.readAllStandardError().contains("doesn't answer"), !answers);
        ASSERT_EQ(first.calls.size(), 1);
        EXPECT_EQ(first.calls[0].member(), QStringLiteral("Activate"));
        const auto data = qdbus_cast<QVariantMap>(first.calls[0].arguments().value(0));
        EXPECT_EQ(data, (QVariantMap{{QStringLiteral("activation-token"), "a token"}}));
        EXPECT_EQ(findProcess(kHost), kNoProcess);
    }
}

TEST_F(HostLifeTest, ARequestOfAnySizeIsCompliedWithAtOnce) {
    open();
    QVariantMap data{{QStringLiteral("desktop-startup-id"), QString(1 << 20, 'x')}};
    for (int i = 0; i < 20'000; ++i)
        data[QString::number(i)] = QStringLiteral("nothing");
    auto call = QDBusMessage::createMethodCall("org.korvex.Preferences", "/org/korvex/Preferences",
                                               "org.freedesktop.Application", "ActivateAction");
    call << QStringLiteral("general") << QVariantList() << data;
    QElapsedTimer timer;
    timer.start();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 20'000);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    EXPECT_LT(timer.elapsed(), 1500);
}

TEST_F(HostLifeTest, OpensWithoutABusTooAndWithOneThatHangs) {
    sockaddr_un place{AF_UNIX, "hangs"}; // in the current folder
    fs::current_path(makeSandboxFolder("bus"));
    const int hanging = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(hanging, reinterpret_cast<sockaddr*>(&place), sizeof place), 0);
    ASSERT_EQ(listen(hanging, 10), 0);
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* path : {"/none", "hangs"}) {
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                           QStringLiteral("unix:path=") + path);
        host_.setProcessEnvironment(environment);
        start();
        // The agent is launched when the pane opens. It says so and ends.
        QByteArray said;
        const auto listen = [&] {
            said += host_.readAllStandardError();
            return said.contains("korvex-agent: there is no session bus");
        };
        EXPECT_TRUE(QTest::qWaitFor(listen, 20'000)) << said.toStdString();
        host_.terminate();
        EXPECT_EQ(waitForEnd(), 0);
        EXPECT_FALSE(fs::exists(storedFile()));
    }
    close(hanging);
}

} // namespace
