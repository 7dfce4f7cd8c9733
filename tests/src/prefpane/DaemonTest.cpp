#include "src/prefpane/Daemon.h"

#include "platform/CoreServices/AppleEventObject.h"
#include "platform/CoreServices/SessionBus.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/SignalProcess.h"

#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QRadioButton>

#include <cerrno>
#include <filesystem>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

constexpr AEEventClass kAgentClass = fourCharCode("Krvx");
constexpr AEEventID kOnOff = fourCharCode("PPon");

/// The link and the real agent, with no pane between them but where the test opens it.
class DaemonTest : public PaneTest {
protected:
    ~DaemonTest() override { daemonCleanup(); }

    static void setUpLink() {
        daemonSetup(CFSTR(KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app"));
    }

    /// Sets up the link with the agent running; the log then begins after the agent heard of it.
    void setUpLinkWithAgent() {
        startAgent();
        setUpLink();
        ASSERT_EQ(agentLog_.nextName(), "PPop");
    }

    static pid_t agentPID() {
        const ProcessSerialNumber agent = findAgent();
        pid_t pid = 0;
        EXPECT_EQ(GetProcessPID(&agent, &pid), noErr);
        return pid;
    }

    /// Ends the agent and waits until nothing is left of it.
    void killAgent() {
        signalProcess(agentPID(), SIGKILL);
        waitForNoAgent();
        ASSERT_TRUE(QTest::qWaitFor([] { return !hasChild(); }, 10'000)) << "not reaped";
    }

    /// Whether this process has launched one that it hasn't reaped.
    static bool hasChild() {
        siginfo_t info;
        return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
    }

    /// The answer to an event that another program sends to this one.
    int answerTo(AEEventClass eventClass, AEEventID eventID,
                 const std::map<AEKeyword, AEDesc>& parameters) {
        AppleEvent event{eventClass, eventID, {}, parameters};
        EXPECT_EQ(GetCurrentProcess(&event.target), noErr);
        const QDBusPendingCall call = otherProgram_.asyncCall(messageOfEvent(event));
        EXPECT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }, 10'000));
        return call.reply().arguments().value(0, -1).toInt();
    }

    QDBusConnection otherProgram_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
};

TEST_F(DaemonTest, SetUpLaunchesTheAgentAlsoWhenItIsOff) {
    for (const bool on : {true, false}) {
        prefs.on = on;
        setUpLink();
        EXPECT_TRUE(hasChild()) << on;
        waitForAgent();
        killAgent();
        daemonCleanup();
    }
    daemonSetup(nullptr); // no path: nothing to launch
    prefs.on = 1;
    daemonSendChanges(kChangeSounds, true);
    EXPECT_FALSE(hasChild());
    EXPECT_EQ(daemonMainBundle(), nullptr);
}

TEST_F(DaemonTest, AChangeLaunchesAnAgentThatWasKilledUnlessItIsOff) {
    setUpLinkWithAgent();

    const struct {
        UInt8 on;
        ChangeMask mask;
        bool launched;
    } cases[] = {
        {0, kChangeSounds, false},
        {0, kChangeOnOff, false},
        {0, kChangeOnOff | kChangeForceOnOff, false},
        {1, kChangeSounds, true},
        {1, 0, true},
        {1, kChangeOnOff | kChangeForceOnOff, true},
    };

    for (const auto& row : cases) {
        killAgent();
        prefs.on = row.on;
        daemonSendChanges(row.mask, true);
        EXPECT_EQ(hasChild(), row.launched) << int{row.on} << ", mask " << row.mask;
        startAgent();
    }
    daemonSendChanges(kChangePointer, true);
    const QJsonObject event = agentLog_.next(); // what was sent to no agent has gone
    EXPECT_EQ(event["event"].toString(), "SAPr");
    EXPECT_EQ(event["mask"].toInteger(), kChangePointer);
}

TEST_F(DaemonTest, TheWholeRecordAndTheMaskArriveAsTheyAre) {
    setUpLinkWithAgent();
    for (const ChangeMask mask : {0u, 0x3000u, 0x1FFFFFFFu}) {
        prefs.soundLevel = mask ^ 0xA5A5A5A5;
        daemonSendChanges(mask, true);
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), mask);
        const auto image = QByteArray::fromRawData(reinterpret_cast<const char*>(&prefs), 340);
        EXPECT_EQ(event["record"].toString().toLatin1(), image.toHex());
    }
    daemonSendChanges(kChangeSounds, false); // waits until the agent has taken it
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), kChangeSounds);
}

TEST_F(DaemonTest, AnAgentThatHangsDelaysNothingAndMissesNothing) {
    constexpr int kCount = 10'000;
    setUpLinkWithAgent();
    const pid_t agent = agentPID();
    signalProcess(agent, SIGSTOP);
    qint64 longest = 0;
    for (int i = 1; i <= kCount; ++i) {
        prefs.borderGap = i;
        QElapsedTimer timer;
        timer.start();
        daemonSendChanges(kChangePalette, true);
        longest = std::max(longest, timer.elapsed());
    }
    EXPECT_LT(longest, 1000) << "ms for one call";
    signalProcess(agent, SIGCONT);
    for (int i = 1; i <= kCount; ++i)
        ASSERT_EQ(recordField<SInt32>(agentLog_.next(), offsetof(PrefsRecord, borderGap)), i);
    daemonCleanup();
    EXPECT_EQ(agentLog_.nextName(), "PPcl");
}

TEST_F(DaemonTest, OnlyAReportOfAnotherStateIsKeptAndNoneIsSentBack) {
    openWithAgent();
    using Parameters = std::map<AEKeyword, AEDesc>;
    const auto state = [](DescType type, std::vector<UInt8> bytes) {
        return Parameters{{keyDirectObject, {type, std::move(bytes)}}};
    };
    const Parameters off = state(typeBoolean, {0});

    const struct {
        const char* what;
        UInt8 before;
        AEEventID eventID;
        Parameters parameters;
        int answer;
        UInt8 after;
    } cases[] = {
        {"the same, on", 1, kOnOff, state(typeBoolean, {1}), noErr, 1},
        {"the same, other byte", 1, kOnOff, state(typeBoolean, {255}), noErr, 1},
        {"the same, off", 0, kOnOff, off, noErr, 0},
        {"off", 1, kOnOff, off, noErr, 0},
        {"on", 0, kOnOff, state(typeBoolean, {1}), noErr, 1},
        {"on, other byte", 0, kOnOff, state(typeBoolean, {2}), noErr, 1},
        {"no state", 1, kOnOff, {}, errAEDescNotFound, 1},
        {"no byte", 1, kOnOff, state(typeBoolean, {}), noErr, 1},
        {"two bytes", 1, kOnOff, state(typeBoolean, {0, 0}), noErr, 1},
        {"mistyped", 1, kOnOff, state(typeUInt32, {0}), errAECoercionFail, 1},
        {"unknown", 1, fourCharCode("PPof"), off, errAEEventNotHandled, 1},
        {"an event for the agent", 1, fourCharCode("SAPr"), off, errAEEventNotHandled, 1},
    };

    const fs::path domain =
        fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences/org.korvex.Agent.plist";
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        prefs.on = row.before;
        EXPECT_EQ(answerTo(kAgentClass, row.eventID, row.parameters), row.answer);
        EXPECT_EQ(prefs.on, row.after);
        prefsFlushChanges();
        EXPECT_EQ(fs::remove(domain), row.before != row.after) << "saved";
    }
    EXPECT_EQ(answerTo(kCoreEventClass, kOnOff, off), errAEEventNotHandled);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_EQ(answerTo(kAgentClass, kOnOff, off), errAEEventNotHandled)
        << "after the pane was put away";
}

TEST_F(DaemonTest, AFloodOfRubbishChangesNothingAndHoldsNothingUp) {
    openWithAgent();
    const PrefsRecord before = prefs;
    AppleEvent event{kAgentClass, kOnOff, {}, {}};
    ASSERT_EQ(GetCurrentProcess(&event.target), noErr);
    for (UInt32 i = 0; i < 5000; ++i) {
        event.eventID = i % 3 ? kOnOff : i;
        event.parameters = {{i % 2 ? keyDirectObject : i, {i % 5 ? typeUInt32 : typeBoolean, {}}}};
        event.parameters[1].data.resize(i % 100 ? i : (1 << 20) + 1);
        QDBusMessage message = messageOfEvent(event);
        if (i % 7 == 0)
            message.setArguments({QStringLiteral("rubbish"), i});
        otherProgram_.send(message);
        if (i == 2500)
            click("volumeDecBtn"); // in the midst of it
    }
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), kChangeSounds);
    // Handled after all of them.
    EXPECT_EQ(answerTo(kAgentClass, kOnOff, {{keyDirectObject, {typeBoolean, {0}}}}), noErr);
    PrefsRecord expected = before;
    expected.soundLevel -= 1;
    expected.on = 0;
    EXPECT_EQ(std::memcmp(&prefs, &expected, sizeof prefs), 0);
    EXPECT_TRUE(find<QRadioButton>("masterOnOffRadios0")->isChecked());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

struct NoBus {
    NoBus() { setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus", 1); }
};

class DaemonWithoutBusTest : private NoBus, public DaemonTest {};

TEST_F(DaemonWithoutBusTest, ThePaneWorksAndStores) {
    open();
    click("volumeDecBtn");
    daemonSendChanges(kChangeSounds, false); // nobody to wait for
    putAway();
    prefs.soundLevel = 0;
    prefsSetup();
    EXPECT_EQ(prefs.soundLevel, 49u);
    // Each agent launched finds no bus either, and ends.
    EXPECT_TRUE(QTest::qWaitFor([] { return !hasChild(); }, 10'000));
}

} // namespace
