// SPDX-License-Identifier: MIT
#include "platform/Support/EventMoment.h"
#include "platform/HIToolbox/EventTimers.h"

#include <gtest/gtest.h>

namespace {

TEST(EventMoment, IsTheServersAsFarAsItsClockIsOurs) {
    const double now = GetCurrentEventTime();
    const auto milliseconds = static_cast<std::uint64_t>(now * 1000);
    EXPECT_NEAR(momentOf(milliseconds - 40), now - 0.04, 0.002);
    // X11's 32 bits overflow again and again.
    EXPECT_NEAR(momentOf((milliseconds - 40) & 0xFFFFFFFFU), now - 0.04, 0.002);
    EXPECT_NEAR(momentOf(0x7FFFFFFF & (milliseconds / 2)), now, 0.1) << "another clock";
    EXPECT_NEAR(momentOf(milliseconds + 9000), now, 0.1) << "not yet";
}

} // namespace
