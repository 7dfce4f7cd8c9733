// SPDX-License-Identifier: MIT
#include "agent/Sounds.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

class SoundsTest : public testing::Test {
protected:
    /// A sound server that never answers.
    SoundsTest() {
        const std::string path = std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/sound";
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        unlink(path.c_str());
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(listen(socket_, 5), 0);
        setenv("PULSE_SERVER", ("unix:" + path).c_str(), 1);
    }

    ~SoundsTest() override { close(socket_); }

    /// Whether it is asked for a sound within that many milliseconds.
    bool isAsked(int time) {
        pollfd waiting{socket_, POLLIN, 0};
        return poll(&waiting, 1, time) == 1;
    }

    const int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

TEST_F(SoundsTest, ASoundServerThatHangsHoldsNothingUp) {
    Clock::time_point start;
    {
        Sounds sounds;
        sounds.use({});
        start = Clock::now();
        sounds.click();
        EXPECT_LT(Clock::now() - start, 100ms);
        ASSERT_TRUE(isAsked(20'000));
        start = Clock::now();
        sounds.pickUp();
        sounds.drop();
        sounds.refuse();
    }
    EXPECT_LT(Clock::now() - start, 100ms);
}

TEST_F(SoundsTest, WhatIsNotToBeHeardAsksForNoSound) {
    PrefsRecord silent, quiet;
    silent.soundLevel = 0;
    quiet.playClickSounds = quiet.playDragPrompts = 0;
    for (const PrefsRecord& record : {silent, quiet}) {
        Sounds sounds;
        sounds.click();
        sounds.use(record);
        sounds.click();
        sounds.arm();
        sounds.pickUp();
        sounds.drop();
        sounds.refuse();
    }
    EXPECT_FALSE(isAsked(500));
}

} // namespace
