// SPDX-License-Identifier: MIT
// What a killed or hanging agent holds is tried with the agent's own process.
#include "agent/x11/XHand.h"
#include "agent/x11/XReleaser.h"

#include "tests/agent/TargetWindow.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QTest>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HandTest : public ApplicationTest<QCoreApplication> {
protected:
    void SetUp() override { ASSERT_TRUE(server_ && guard_) << fault_; }

    XvfbServer xvfb_;
    TargetWindow target_{0, 0, 400, 300};
    std::string fault_;
    std::unique_ptr<Guard> guard_ = Guard::start(connectXReleaser);
    std::unique_ptr<XServer> server_ = XServer::connect(fault_);
    XHand hand_{*server_, *guard_};
};

TEST_F(HandTest, ClicksWithItsTimesAndKnowsWhatItHolds) {
    bool isDone = false;
    const double began = XServer::now();
    hand_.click({.place = {30, 40}, .count = 2, .duration = 0.05, .pause = 0.02},
                [&] { isDone = true; });
    EXPECT_TRUE(hand_.holdsAnything());
    EXPECT_THAT(target_.events(1), ElementsAre("press 1 at 30,40"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
    EXPECT_GE(XServer::now() - began, 0.119);
    EXPECT_FALSE(hand_.holdsAnything());
    EXPECT_THAT(target_.events(3),
                ElementsAre("release 1 at 30,40", "press 1 at 30,40", "release 1 at 30,40"));

    // A second click finishes the first one at once.
    isDone = false;
    hand_.click({.place = {1, 2}, .button = 3, .duration = 9}, [&] { isDone = true; });
    hand_.click({.place = {5, 6}, .duration = 9});
    EXPECT_TRUE(isDone);
    EXPECT_THAT(target_.events(3),
                ElementsAre("press 3 at 1,2", "release 3 at 1,2", "press 1 at 5,6"));
    hand_.keyDown(38);
    hand_.letGo();
    EXPECT_FALSE(hand_.holdsAnything());
    EXPECT_THAT(target_.events(3), ElementsAre("key 38 down", testing::_, testing::_));
    EXPECT_THAT(target_.down(), IsEmpty());
}

TEST_F(HandTest, ButtonsAreThoseThatProgramsSee) {
    const std::uint8_t leftHanded[] = {3, 2, 1, 4, 5, 6, 7, 8, 9, 10};
    xcb_set_pointer_mapping(target_.connection(), sizeof leftHanded, leftHanded);
    target_.events();
    EXPECT_TRUE(QTest::qWaitFor([&] { return server_->deviceButton(1) == 3; }));
    hand_.click({.place = {1, 2}, .duration = 0.01});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hand_.holdsAnything(); }));
    EXPECT_THAT(target_.events(2), ElementsAre("press 1 at 1,2", "release 1 at 1,2"));
}

} // namespace
