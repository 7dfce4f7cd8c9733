// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>

/// Shared memory in which the receiving process notes what it got.
struct LinkNote {
    std::atomic<std::uint64_t> count;
    std::int64_t received; ///< linkClock() of the last
};

/// Nanoseconds of a clock that all processes share.
inline std::int64_t linkClock() {
    return std::chrono::steady_clock::now().time_since_epoch().count();
}

#define LINK_PEER_NAME "org.example.BenchPeer"
