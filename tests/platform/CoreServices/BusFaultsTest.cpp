// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QElapsedTimer>

namespace {

/// Expects that no process is known and that sending fails at once.
void expectNobody() {
    ProcessSerialNumber psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), procNotFound);
    EXPECT_EQ(GetCurrentProcess(&psn), procNotFound);
    const AppleEvent event = makeEvent({1, 1}, kTestClass, kAnswerCode);
    for (const AESendMode mode : {kAENoReply, kAEWaitReply})
        EXPECT_EQ(AESend(&event, nullptr, mode, kAEDefaultTimeout), connectionInvalid);
}

/// The test's own bus, which it ends.
class BusFaultsTest : public ProcessTest {
protected:
    BusFaultsTest() {
        bus_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        EXPECT_TRUE(bus_.waitForReadyRead(20'000));
        setenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed().constData(), 1);
        EXPECT_TRUE(takePart());
    }

    ~BusFaultsTest() override {
        bus_.kill();
        bus_.waitForFinished();
    }

    QProcess bus_;
};

TEST_F(BusFaultsTest, ABusThatHangsDelaysOnlyAWaitingSenderAndOneThatHasGoneNobody) {
    TestPeer peer;
    ASSERT_TRUE(waitUntil([&] { return peer.ask() == 8; }));
    ProcessSerialNumber psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), noErr);
    signalProcess(bus_.processId(), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer.psn(), kTestClass, kAnswerCode);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), noErr);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(peer.ask(30), errAETimeout);
    signalProcess(bus_.processId(), SIGCONT);
    EXPECT_EQ(peer.ask(), 8);

    bus_.kill();
    ASSERT_TRUE(QTest::qWaitFor([] { return !sessionBus().isConnected(); }, 20'000));
    EXPECT_EQ(peer.ask(), connectionInvalid);
    expectNobody();
}

} // namespace
