// SPDX-License-Identifier: MIT
#include "agent/x11/Hand.h"

#include "tests/agent/TargetWindow.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr xcb_keycode_t kA = 38;

/// What an agent is made of, in a process that may be killed.
struct Agent {
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    std::unique_ptr<Guard> guard = Guard::start();
    QCoreApplication application{argc, argv};
    std::string fault;
    std::unique_ptr<XServer> server = XServer::connect(fault);
    Hand hand{*server, *guard};
};

class HandTest : public testing::Test {
protected:
    ~HandTest() override {
        if (agent_ > 0)
            signalAgent(SIGKILL);
    }

    /// An agent in a process of its own that does this and then waits for ever.
    void startAgent(const std::function<void(Agent&)>& act) {
        agent_ = fork();
        if (agent_ != 0)
            return;
        Agent agent;
        act(agent);
        QCoreApplication::exec();
        _exit(0);
    }

    void signalAgent(int signal) {
        ASSERT_GT(agent_, 0);
        kill(agent_, signal);
        if (signal == SIGKILL) {
            waitpid(agent_, nullptr, 0);
            agent_ = 0;
        }
    }

    void waitUntilHolding() {
        for (const double began = XServer::now(); target_.down().empty(); usleep(500))
            ASSERT_LT(XServer::now() - began, 20) << "nothing is held";
    }

    void waitUntilLetGo() {
        for (const double began = XServer::now(); !target_.down().empty(); usleep(500))
            ASSERT_LT(XServer::now() - began, 5) << "it is still held";
    }

    XvfbServer xvfb_;
    TargetWindow target_{0, 0, 400, 300};
    pid_t agent_ = 0;
};

TEST_F(HandTest, ClicksWithItsTimesAndKnowsWhatItHolds) {
    Agent agent;
    ASSERT_TRUE(agent.server) << agent.fault;
    bool isDone = false;
    const double began = XServer::now();
    agent.hand.click({.place = {30, 40}, .count = 2, .duration = 0.05, .pause = 0.02},
                     [&] { isDone = true; });
    EXPECT_TRUE(agent.hand.holdsAnything());
    EXPECT_THAT(target_.events(1), ElementsAre("press 1 at 30,40"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
    EXPECT_GE(XServer::now() - began, 0.119);
    EXPECT_FALSE(agent.hand.holdsAnything());
    EXPECT_THAT(target_.events(3),
                ElementsAre("release 1 at 30,40", "press 1 at 30,40", "release 1 at 30,40"));

    // A second click finishes the first one at once.
    isDone = false;
    agent.hand.click({.place = {1, 2}, .button = 3, .duration = 9}, [&] { isDone = true; });
    agent.hand.click({.place = {5, 6}, .duration = 9});
    EXPECT_TRUE(isDone);
    EXPECT_THAT(target_.events(3),
                ElementsAre("press 3 at 1,2", "release 3 at 1,2", "press 1 at 5,6"));
    agent.hand.keyDown(kA);
    agent.hand.letGo();
    EXPECT_FALSE(agent.hand.holdsAnything());
    EXPECT_THAT(target_.events(3), ElementsAre("key 38 down", testing::_, testing::_));
    EXPECT_THAT(target_.down(), IsEmpty());
}

TEST_F(HandTest, ButtonsAreThoseThatProgramsSee) {
    Agent agent;
    ASSERT_TRUE(agent.server) << agent.fault;
    const std::uint8_t leftHanded[] = {3, 2, 1, 4, 5, 6, 7, 8, 9, 10};
    xcb_set_pointer_mapping(target_.connection(), sizeof leftHanded, leftHanded);
    target_.events();
    EXPECT_TRUE(QTest::qWaitFor([&] { return agent.server->deviceButton(1) == 3; }));
    agent.hand.click({.place = {1, 2}, .duration = 0.01});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !agent.hand.holdsAnything(); }));
    EXPECT_THAT(target_.events(2), ElementsAre("press 1 at 1,2", "release 1 at 1,2"));
}

/// Cases are what an agent is at when it ends.
struct End {
    const char* name;
    std::function<void(Agent&)> act;
    int signal;
    double least, most; ///< ms until all is let go
};

const End kEnds[] = {
    {"killed in mid-click",
     [](Agent& agent) {
         agent.hand.click({.place = {9, 9}, .duration = 60});
     },
     SIGKILL, 0, 50},
    {"killed in mid-drag",
     [](Agent& agent) {
         agent.hand.move({9, 9});
         agent.hand.buttonDown(1);
         agent.hand.keyDown(kA);
         agent.hand.move({99, 99});
     },
     SIGKILL, 0, 50},
    {"hung in a scan",
     [](Agent& agent) {
         agent.guard->watch();
         agent.hand.buttonDown(1);
     },
     SIGSTOP, 2700, 3300},
};

TEST_F(HandTest, AnAgentThatEndsOrHangsHoldsNothing) {
    for (const auto& [name, act, signal, least, most] : kEnds) {
        SCOPED_TRACE(name);
        double best = 1e9; // of a few: the computer may be busy
        for (int i = 0; i < 5 && best > most; ++i) {
            startAgent(act);
            waitUntilHolding();
            const double began = XServer::now();
            signalAgent(signal);
            waitUntilLetGo();
            best = std::min(best, (XServer::now() - began) * 1000);
            if (signal != SIGKILL)
                signalAgent(SIGKILL);
            usleep(100'000); // the guard lets go more than once
        }
        EXPECT_GE(best, least);
        EXPECT_LE(best, most);
        RecordProperty(signal == SIGKILL ? "kill_ms" : "hang_ms", std::to_string(best));
    }
}

TEST_F(HandTest, AGuardThatIsToldOfALifeLetsItBe) {
    startAgent([](Agent& agent) {
        agent.guard->watch();
        agent.hand.buttonDown(1);
        static QTimer heart;
        QObject::connect(&heart, &QTimer::timeout, [&agent] { agent.guard->heartbeat(); });
        heart.start(16);
        QTimer::singleShot(3300, [&agent] {
            heart.stop();
            agent.guard->rest();
        });
    });
    waitUntilHolding();
    usleep(6'500'000);
    EXPECT_THAT(target_.down(), ElementsAre("button 1"));
}

TEST_F(HandTest, TheGuardIsNobodysChildAndKeepsNothingOpen) {
    int files[2];
    ASSERT_EQ(pipe(files), 0);
    startAgent([&files](Agent& agent) {
        const bool hasChild = waitpid(-1, nullptr, WNOHANG) != -1;
        EXPECT_EQ(write(files[1], hasChild ? "c" : "-", 1), 1);
        close(files[1]);
        agent.hand.buttonDown(1);
    });
    close(files[1]);
    char hasChild = 0;
    EXPECT_EQ(read(files[0], &hasChild, 1), 1);
    EXPECT_EQ(hasChild, '-');
    EXPECT_EQ(read(files[0], &hasChild, 1), 0); // the end, while the agent and its guard live on
    close(files[0]);
    waitUntilHolding();
}

} // namespace
