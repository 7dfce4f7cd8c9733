// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/EventMoment.h"

#include "platform/HIToolbox/EventTimers.h"

namespace {

constexpr std::int32_t kLongestWait = 5000; ///< ms from an event to its handling

} // namespace

double momentOf(std::uint64_t milliseconds) {
    const double now = GetCurrentEventTime();
    const auto nowInMilliseconds = static_cast<std::uint64_t>(now * 1000);
    const auto age = static_cast<std::int32_t>(static_cast<std::uint32_t>(nowInMilliseconds) -
                                               static_cast<std::uint32_t>(milliseconds));
    if (age < 0 || age > kLongestWait)
        return now;
    return static_cast<double>(nowInMilliseconds - static_cast<std::uint64_t>(age)) / 1000;
}
