// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>

/// Sends a signal to one process that runs. Without one the test fails: a process ID of 0 stands
/// for the test's whole process group.
inline void signalProcess(std::int64_t pid, int signal) {
    ASSERT_GT(pid, 0) << "there is no process to signal";
    EXPECT_EQ(kill(static_cast<pid_t>(pid), signal), 0);
}
