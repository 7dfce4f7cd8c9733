// SPDX-License-Identifier: MIT
#include "src/link/Daemon.h"

#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/SessionBus.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/SignalProcess.h"

#include <QDBusPendingCall>
#include <QElapsedTimer>

namespace {

constexpr AEEventClass kAgentClass = fourCharCode("Krvx");
constexpr AEEventID kOnOff = fourCharCode("PPon");

using Parameters = std::map<AEKeyword, AEDesc>;

Parameters state(DescType type, std::vector<UInt8> bytes) {
    return {{keyDirectObject, {type, std::move(bytes)}}};
}

/// The link and the real agent. The pane takes part only where the test opens it.
class DaemonTest : public PaneTest {
protected:
    ~DaemonTest() override { daemonCleanup(); }

    /// The answer to an event from another program to this one.
    int answerTo(AEEventClass eventClass, AEEventID eventID, const Parameters& parameters) {
        AppleEvent event{eventClass, eventID, {}, parameters};
        EXPECT_EQ(GetCurrentProcess(&event.target), noErr);
        const QDBusPendingCall call = otherProgram_.asyncCall(messageOfEvent(event));
        EXPECT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }, 30'000));
        return call.reply().arguments().value(0, -1).toInt();
    }

    QDBusConnection otherProgram_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
};

TEST_F(DaemonTest, AnAgentThatHangsDelaysNothingAndMissesNothing) {
    constexpr int kCount = 10'000;
    startAgent();
    daemonSetup(CFSTR(KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app"));
    ASSERT_EQ(agentLog_.nextName(), "PPop");
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
    prefs.soundLevel = 0xA5A5A5A5;
    daemonSendChanges(0x1FFFFFFF, false); // waits until the agent has taken it, as it is
    const QJsonObject last = agentLog_.next();
    EXPECT_EQ(last["mask"].toInteger(), 0x1FFFFFFF);
    const auto image = QByteArray::fromRawData(reinterpret_cast<const char*>(&prefs), sizeof prefs);
    EXPECT_EQ(last["record"].toString().toLatin1(), image.toHex());
}

TEST_F(DaemonTest, OnlyAReportOfAnotherStateIsKeptAndNoneIsSentBack) {
    openWithAgent();
    const Parameters off = state(typeBoolean, {0});

    const struct {
        const char* what;
        UInt8 before;
        AEEventID eventID;
        Parameters parameters;
        int answer;
        UInt8 after;
    } cases[] = {
        {"off", 1, kOnOff, off, noErr, 0},
        {"on, other byte", 0, kOnOff, state(typeBoolean, {2}), noErr, 1},
        {"two bytes", 1, kOnOff, state(typeBoolean, {0, 0}), noErr, 1},
        {"63 MiB, which leave it hearing", 1, kOnOff,
         state(typeBoolean, std::vector<UInt8>(63 << 20)), noErr, 1},
        {"an event for the agent", 1, fourCharCode("SAPr"), off, errAEEventNotHandled, 1},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        prefs.on = row.before;
        EXPECT_EQ(answerTo(kAgentClass, row.eventID, row.parameters), row.answer);
        EXPECT_EQ(prefs.on, row.after);
        prefsFlushChanges();
        EXPECT_EQ(fs::remove(storedFile()), row.before != row.after) << "saved";
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_EQ(answerTo(kAgentClass, kOnOff, off), errAEEventNotHandled)
        << "after the pane was put away";
}

} // namespace
