#include "platform/CoreFoundation/CFNumber.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

TEST(CFNumber, ConvertsOnlyWhatFitsExactly) {
    constexpr std::int64_t kMost = INT64_MAX;

    const struct {
        CFNumber number;
        bool fits32, fits64, fitsDouble;
    } cases[] = {{CFNumber(std::int64_t{1} << 31), false, true, true},
                 {CFNumber(kMost), false, true, false},
                 {CFNumber(-2147483648.0), true, true, true},
                 {CFNumber(9223372036854775808.0), false, false, true},
                 {CFNumber(NAN), false, false, true}};

    for (const auto& row : cases) {
        std::int64_t any = 0;
        SCOPED_TRACE(row.number.doubleValue());
        EXPECT_EQ(CFNumberGetValue(&row.number, kCFNumberSInt32Type, &any), row.fits32);
        EXPECT_EQ(CFNumberGetValue(&row.number, kCFNumberSInt64Type, &any), row.fits64);
        EXPECT_EQ(CFNumberGetValue(&row.number, kCFNumberDoubleType, &any), row.fitsDouble);
    }
    EXPECT_EQ(CFNumber(1e30).integerValue(), kMost);
    const CFNumber whole((std::int64_t{1} << 53) + 1), real(0x1p53), none(NAN);
    EXPECT_FALSE(CFEqual(&whole, &real));
    EXPECT_TRUE(CFEqual(&none, &cases[4].number)) << "not a number, both";
}

} // namespace
