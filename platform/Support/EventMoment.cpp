// SPDX-License-Identifier: MIT
#include "platform/Support/EventMoment.h"

#include <ctime>

namespace {

constexpr std::int32_t kLongestWait = 5000; ///< ms from an event to its handling

} // namespace

double monotonicNow() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

double momentOf(std::uint64_t milliseconds) {
    const double now = monotonicNow();
    const auto nowInMilliseconds = static_cast<std::uint64_t>(now * 1000);
    const auto age = static_cast<std::int32_t>(static_cast<std::uint32_t>(nowInMilliseconds) -
                                               static_cast<std::uint32_t>(milliseconds));
    if (age < 0 || age > kLongestWait)
        return now;
    return static_cast<double>(nowInMilliseconds - static_cast<std::uint64_t>(age)) / 1000;
}
