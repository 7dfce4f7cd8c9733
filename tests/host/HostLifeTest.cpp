#include "platform/CoreServices/LaunchServices.h"
#include "tests/support/AgentLog.h"
#include "tests/support/NoticeMuting.h"
#include "tests/support/ProcessTest.h"
#include "tests/support/SignalProcess.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QJsonArray>
#include <QProcess>
#include <gmock/gmock.h>

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;

namespace {

constexpr OSType kAgent = fourCharCode("Krvx");
constexpr OSType kHost = fourCharCode("sprf");
const QString kName = QStringLiteral("org.korvex.Preferences");
const QString kPath = QStringLiteral("/org/korvex/Preferences");
const QString kInterface = QStringLiteral("org.freedesktop.Application");

/// The host as a program with its own pane, and the agent beside it.
class HostLifeTest : public ProcessTest {
protected:
    HostLifeTest() {
        takePart();
        muteNotice();
    }

    ~HostLifeTest() override {
        host_.kill();
        host_.waitForFinished();
        pid_t pid;
        const ProcessSerialNumber agent = findProcess(kAgent);
        if (GetProcessPID(&agent, &pid) == noErr)
            kill(pid, SIGKILL);
    }

    /// Starts the agent, then the host, and waits until the pane is open.
    void open() {
        const auto url = CFURLCreateFromFileSystemRepresentation(
            KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app", true);
        ASSERT_EQ(LSOpenCFURLRef(url.get(), nullptr), noErr);
        ASSERT_TRUE(QTest::qWaitFor([] { return findProcess(kAgent) != kNoProcess; }, 20'000));
        start(host_);
        const QJsonArray psn = agentLog_.next()["psn"].toArray();
        pane_ = {static_cast<UInt32>(psn.at(0).toInteger()),
                 static_cast<UInt32>(psn.at(1).toInteger())};
        ASSERT_TRUE(QTest::qWaitFor([this] { return findProcess(kHost) == pane_; }, 20'000));
    }

    static void start(QProcess& host) {
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(QStringLiteral(KORVEX_HOST), QStringList());
    }

    /// The exit status; -1 when it crashed or goes on.
    static int waitForEnd(QProcess& host) {
        const bool ended =
            QTest::qWaitFor([&] { return host.state() == QProcess::NotRunning; }, 20'000);
        return ended && host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    }

    /// Tells the pane, as the agent does, that scanning was turned off.
    OSErr reportOff() {
        return sendAndWait(makeEvent(pane_, fourCharCode("Krvx"), fourCharCode("PPon"),
                                     {{keyDirectObject, {typeBoolean, {0}}}}));
    }

    QProcess host_;
    ProcessSerialNumber pane_;
    AgentLog agentLog_;
};

/// The file of the stored settings; empty when there is none.
std::string stored() {
    return readFile(fs::path(std::getenv("XDG_CONFIG_HOME")) /
                    "Preferences/org.korvex.Agent.plist");
}

class HostSignalTest : public testing::WithParamInterface<int>, public HostLifeTest {};

TEST_P(HostSignalTest, PutsThePaneAwayAndStoresWhatWasChanged) {
    for (const bool changed : {false, true}) {
        SCOPED_TRACE(changed);
        open();
        EXPECT_EQ(changed ? reportOff() : OSErr{noErr}, noErr);
        signalProcess(host_.processId(), GetParam());
        EXPECT_EQ(waitForEnd(host_), 0);
        EXPECT_EQ(agentLog_.nextName(), "PPcl");
        EXPECT_EQ(stored().empty(), !changed);
        if (changed) {
            EXPECT_THAT(stored(), AllOf(HasSubstr("<key>on</key>\n\t<string>no</string>"),
                                        HasSubstr("<key>palette.buttonActions</key>")));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Signals, HostSignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(HostLifeTest, ASecondStartLeavesTheFirstInPlace) {
    open();
    QProcess second;
    start(second);
    EXPECT_EQ(waitForEnd(second), 0);
    auto call =
        QDBusMessage::createMethodCall(kName, kPath, kInterface, QStringLiteral("Activate"));
    for (const auto& [arguments, reply] : {std::pair(QVariantList{}, QDBusMessage::ErrorMessage),
                                           {{"x"}, QDBusMessage::ErrorMessage},
                                           {{QVariantMap()}, QDBusMessage::ReplyMessage}}) {
        call.setArguments(arguments);
        EXPECT_EQ(QDBusConnection::sessionBus().call(call).type(), reply);
    }
    EXPECT_EQ(findProcess(kHost), pane_);
    host_.terminate();
    EXPECT_EQ(waitForEnd(host_), 0);
    EXPECT_EQ(agentLog_.nextName(), "PPcl") << "the second one has opened the pane";
}

/// Stands for a first instance.
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
    ASSERT_TRUE(bus.registerVirtualObject(kPath, &first) && bus.registerService(kName));
    for (const bool answers : {true, false}) {
        first.answers = answers;
        first.calls.clear();
        host_.start(QStringLiteral(KORVEX_HOST), QStringList());
        EXPECT_EQ(waitForEnd(host_), 0);
        EXPECT_EQ(host_.readAllStandardError().contains("doesn't answer"), !answers);
        ASSERT_EQ(first.calls.size(), 1);
        EXPECT_EQ(first.calls[0].interface(), kInterface);
        EXPECT_EQ(first.calls[0].member(), QStringLiteral("Activate"));
        const auto data = qdbus_cast<QVariantMap>(first.calls[0].arguments().value(0));
        EXPECT_EQ(data, (QVariantMap{{QStringLiteral("activation-token"), "a token"}}));
        EXPECT_EQ(findProcess(kHost), kNoProcess);
    }
}

TEST_F(HostLifeTest, OpensWithoutABusToo) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/none"));
    host_.setProcessEnvironment(environment);
    host_.start(QStringLiteral(KORVEX_HOST), QStringList());
    // The agent, which is launched when the pane opens, says so and ends.
    std::string said;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            said += host_.readAllStandardError().toStdString();
            return said.find("korvex-agent: there is no session bus") != std::string::npos;
        },
        20'000))
        << said;
    host_.terminate();
    EXPECT_EQ(waitForEnd(host_), 0);
    EXPECT_EQ(stored(), "");
}

} // namespace
