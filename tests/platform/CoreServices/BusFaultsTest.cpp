// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"
#include "tests/support/OwnBus.h"

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

class BusFaultsTest : public ProcessTest {
protected:
    BusFaultsTest() { EXPECT_TRUE(takePart()); }

    OwnBus bus_;
};

TEST_F(BusFaultsTest, ABusThatHangsDelaysOnlyAWaitingSenderAndOneThatHasGoneNobody) {
    TestPeer peer;
    ASSERT_TRUE(waitUntil([&] { return peer.ask() == 8; }));
    ProcessSerialNumber psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), noErr);
    bus_.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer.psn(), kTestClass, kAnswerCode);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    psn = kNoProcess;
    EXPECT_EQ(GetNextProcess(&psn), noErr);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(peer.ask(30), errAETimeout);
    bus_.signal(SIGCONT);
    EXPECT_EQ(peer.ask(), 8);

    bus_.end();
    ASSERT_TRUE(QTest::qWaitFor([] { return !sessionBus().isConnected(); }, 20'000));
    EXPECT_EQ(peer.ask(), connectionInvalid);
    expectNobody();
}

} // namespace
