#include "platform/CoreServices/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QElapsedTimer>

#include <cstdlib>

namespace {

/// That no process is known, and sending fails at once.
void expectNobody() {
    ProcessSerialNumber psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), procNotFound);
    EXPECT_EQ(GetCurrentProcess(&psn), procNotFound);
    const AppleEvent event = makeEvent({1, 1}, kTestClass, kAnswerCode);
    for (const AESendMode mode : {kAENoReply, kAEWaitReply})
        EXPECT_EQ(AESend(&event, nullptr, mode, kAEDefaultTimeout), connectionInvalid);
}

/// Its parameter is the bus's address.
class NoBusTest : public testing::WithParamInterface<const char*>, public ProcessTest {
protected:
    NoBusTest() { setenv("DBUS_SESSION_BUS_ADDRESS", GetParam(), 1); }
};

TEST_P(NoBusTest, NobodyTakesPart) {
    EXPECT_FALSE(takePart());
    expectNobody();
}

INSTANTIATE_TEST_SUITE_P(Addresses, NoBusTest,
                         testing::Values("", "rubbish", "unix:path=/nonexistent/bus",
                                         "tcp:host=localhost,port=1"));

/// A bus of its own, to be ended by the test.
class BusGoesTest : public ProcessTest {
protected:
    BusGoesTest() {
        bus_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address")});
        EXPECT_TRUE(bus_.waitForReadyRead(20'000));
        setenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed().constData(), 1);
        EXPECT_TRUE(takePart());
    }

    ~BusGoesTest() override {
        bus_.kill();
        bus_.waitForFinished();
    }

    QProcess bus_;
};

TEST_F(BusGoesTest, NobodyTakesPartAfterItHasGone) {
    TestPeer peer;
    ASSERT_TRUE(waitUntil([&] { return peer.ask() == 8; }));
    bus_.kill();
    ASSERT_TRUE(QTest::qWaitFor([] { return !sessionBus().isConnected(); }, 20'000));
    EXPECT_EQ(peer.ask(), connectionInvalid);
    expectNobody();
}

TEST_F(BusGoesTest, ABusThatHangsDelaysNobodyButAWaitingSender) {
    TestPeer peer;
    ASSERT_TRUE(waitUntil([&] { return peer.ask() == 8; }));
    signalProcess(bus_.processId(), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer.psn(), kTestClass, kAnswerCode);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    ProcessSerialNumber psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), noErr);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(peer.ask(30), errAETimeout);
    signalProcess(bus_.processId(), SIGCONT);
    EXPECT_EQ(peer.ask(), 8);
}

} // namespace
