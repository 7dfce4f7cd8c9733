#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFFileReading.h"
#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/LaunchServices.h"
#include "tests/support/AgentLog.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QJsonArray>
#include <QProcess>
#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

const QString kName = QStringLiteral("org.korvex.Preferences");
const QString kPath = QStringLiteral("/org/korvex/Preferences");
const QString kInterface = QStringLiteral("org.freedesktop.Application");

/// The host as a program with its own pane, and the agent beside it.
class HostLifeTest : public testing::Test {
protected:
    HostLifeTest() { registerCurrentProcess(fourCharCode("APPL"), fourCharCode("test")); }

    ~HostLifeTest() override {
        host_.kill();
        host_.waitForFinished();
        pid_t pid;
        if (const auto agent = find(fourCharCode("Krvx"));
            agent != kNoProcess && GetProcessPID(&agent, &pid) == noErr)
            kill(pid, SIGKILL);
    }

    /// The process of that signature, or kNoProcess.
    static ProcessSerialNumber find(OSType signature) {
        ProcessSerialNumber psn = kNoProcess;
        while (GetNextProcess(&psn) == noErr) {
            ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
            if (GetProcessInformation(&psn, &info) == noErr && info.processSignature == signature)
                return psn;
        }
        return kNoProcess;
    }

    /// Starts the agent, then the host, and waits until the pane is open.
    void open() {
        const auto url = CFURLCreateFromFileSystemRepresentation(
            KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app", true);
        ASSERT_EQ(LSOpenCFURLRef(url.get(), nullptr), noErr);
        ASSERT_TRUE(
            QTest::qWaitFor([] { return find(fourCharCode("Krvx")) != kNoProcess; }, 20'000));
        start(host_);
        const QJsonArray psn = agentLog_.next()["psn"].toArray();
        pane_ = {static_cast<UInt32>(psn.at(0).toInteger()),
                 static_cast<UInt32>(psn.at(1).toInteger())};
        ASSERT_EQ(pane_, find(fourCharCode("sprf")));
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
        AEAddressDesc address;
        AppleEvent event;
        AECreateDesc(typeProcessSerialNumber, &pane_, sizeof pane_, &address);
        AECreateAppleEvent(fourCharCode("Krvx"), fourCharCode("PPon"), &address,
                           kAutoGenerateReturnID, kAnyTransactionID, &event);
        AEPutParamPtr(&event, keyDirectObject, typeBoolean, "", 1);
        return AESend(&event, nullptr, kAEWaitReply, kAEDefaultTimeout);
    }

    static QDBusMessage activation(const QVariantList& arguments) {
        auto message =
            QDBusMessage::createMethodCall(kName, kPath, kInterface, QStringLiteral("Activate"));
        message.setArguments(arguments);
        return message;
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};

protected:
    QProcess host_;
    ProcessSerialNumber pane_;
    AgentLog agentLog_;
};

/// The stored settings; null when there are none.
CFRef<const CFDictionary> stored() {
    const auto file =
        fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences/org.korvex.Agent.plist";
    const CFFileContents contents = CFReadRegularFile(file, kCFPropertyListMaxSize);
    const auto root =
        contents.data ? CFPropertyListCreateFromXMLData(contents.data.get()) : nullptr;
    return CFRef<const CFDictionary>::retain(dynamicCFCast<CFDictionary>(root.get()));
}

class HostSignalTest : public testing::WithParamInterface<int>, public HostLifeTest {};

TEST_P(HostSignalTest, PutsThePaneAwayAndStoresWhatWasChanged) {
    for (const bool changed : {false, true}) {
        SCOPED_TRACE(changed);
        open();
        if (changed) {
            EXPECT_EQ(reportOff(), noErr);
        }
        kill(static_cast<pid_t>(host_.processId()), GetParam());
        EXPECT_EQ(waitForEnd(host_), 0);
        EXPECT_EQ(agentLog_.nextName(), "PPcl");
        const auto settings = stored();
        ASSERT_EQ(settings.get() != nullptr, changed);
        if (changed) {
            EXPECT_TRUE(CFEqual(CFDictionaryGetValue(settings.get(), CFSTR("on")), CFSTR("no")));
            EXPECT_TRUE(CFDictionaryGetValue(settings.get(), CFSTR("palette.buttonActions")))
                << "only what was changed is stored";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Signals, HostSignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(HostLifeTest, ASecondStartLeavesTheFirstInPlace) {
    open();
    QProcess second;
    start(second);
    EXPECT_EQ(waitForEnd(second), 0);
    auto bus = QDBusConnection::sessionBus();
    for (const QVariantList& rubbish :
         {QVariantList{}, QVariantList{"x"}, QVariantList{QVariantMap(), 1}})
        EXPECT_EQ(bus.call(activation(rubbish)).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.call(activation({QVariantMap()})).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(find(fourCharCode("sprf")), pane_);
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
        start(host_);
        EXPECT_EQ(waitForEnd(host_), 0);
        ASSERT_EQ(first.calls.size(), 1);
        EXPECT_EQ(first.calls[0].interface(), kInterface);
        EXPECT_EQ(first.calls[0].member(), QStringLiteral("Activate"));
        const auto data = qdbus_cast<QVariantMap>(first.calls[0].arguments().value(0));
        EXPECT_EQ(data, (QVariantMap{{QStringLiteral("activation-token"), "a token"}}));
        EXPECT_EQ(find(fourCharCode("sprf")), kNoProcess);
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
    EXPECT_FALSE(stored());
}

} // namespace
