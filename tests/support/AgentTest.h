// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/LaunchServices.h"
#include "tests/support/AgentLog.h"
#include "tests/support/NoticeMuting.h"
#include "tests/support/ProcessTest.h"

#include <csignal>
#include <sys/wait.h>

/// A test that can start the bundle's agent as another process. The agent ends with the test.
template <class Application>
class AgentTest : public ApplicationTest<Application> {
protected:
    AgentTest() { muteNotice(); }

    ~AgentTest() override {
        if (const pid_t agent = agentPID())
            kill(agent, SIGKILL);
    }

    /// Starts the agent and waits until it takes part.
    static void startAgent() {
        const auto url = CFURLCreateFromFileSystemRepresentation(
            KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app", true);
        ASSERT_EQ(LSOpenCFURLRef(url.get(), nullptr), noErr);
        waitForAgent();
    }

    static void waitForAgent() {
        ASSERT_TRUE(QTest::qWaitFor([] { return agentPID() != 0; }, 20'000))
            << "the agent didn't start";
    }

    /// Returns when the agent's process is gone. While it ends, no other is launched.
    static void waitForNoAgent() {
        const auto hasChild = [] {
            siginfo_t info;
            return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return !agentPID() && !hasChild(); }, 10'000))
            << "the agent didn't quit";
    }

    static ProcessSerialNumber findAgent() { return findProcess(fourCharCode("Krvx")); }

    /// 0 when it doesn't run.
    static pid_t agentPID() {
        const ProcessSerialNumber agent = findAgent();
        pid_t pid = 0;
        return agent != kNoProcess && GetProcessPID(&agent, &pid) == noErr ? pid : 0;
    }

    static fs::path storedFile() {
        return fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences/org.korvex.Agent.plist";
    }

    AgentLog agentLog_;
};
