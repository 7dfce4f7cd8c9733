#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFURL.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

CFRef<CFNumber> number(auto value) {
    return CFRef<CFNumber>::adopt(new CFNumber(value));
}

TEST(CFRef, ContainersShareOwnership) {
    const auto value = number(std::int64_t{1});
    {
        const auto array = CFArrayCreateMutable();
        CFArrayAppendValue(array.get(), value.get());
        const auto copy = CFArrayCreateMutableCopy(array.get());
        EXPECT_EQ(value->retainCount(), 3);
        CFArrayRemoveValueAtIndex(array.get(), 0);
        CFArrayRemoveValueAtIndex(array.get(), 0);
        EXPECT_EQ(CFArrayGetCount(array.get()), 0);
        EXPECT_EQ(CFArrayGetValueAtIndex(copy.get(), 0), value.get());
        EXPECT_EQ(CFArrayGetValueAtIndex(copy.get(), 1), nullptr);
        EXPECT_EQ(CFArrayGetValueAtIndex(copy.get(), -1), nullptr);

        const auto dictionary = CFDictionaryCreateMutable();
        CFDictionarySetValue(dictionary.get(), CFSTR("k"), value.get());
        CFDictionarySetValue(dictionary.get(), CFSTR("k"), value.get());
        EXPECT_EQ(value->retainCount(), 3);
        CFDictionaryRemoveValue(dictionary.get(), CFSTR("k"));
        EXPECT_EQ(CFDictionaryGetValue(dictionary.get(), CFSTR("k")), nullptr);
    }
    EXPECT_EQ(value->retainCount(), 1);
}

TEST(CFNumber, ConvertsOnlyWhatFitsExactly) {
    const struct {
        CFRef<CFNumber> number;
        bool fits32, fits64, fitsDouble;
    } cases[] = {
        {number(std::int64_t{-7}), true, true, true},
        {number(std::int64_t{1} << 31), false, true, true},
        {number((std::int64_t{1} << 53) + 1), false, true, false},
        {number(kMost), false, true, false},
        {number(kLeast), false, true, true},
        {number(1.5), false, false, true},
        {number(-2147483648.0), true, true, true},
        {number(9223372036854775808.0), false, false, true},
        {number(std::numeric_limits<double>::quiet_NaN()), false, false, true},
    };

    for (const auto& row : cases) {
        SInt32 small = 0;
        std::int64_t large = 0;
        double real = 0;
        SCOPED_TRACE(row.number->doubleValue());
        EXPECT_EQ(CFNumberGetValue(row.number.get(), kCFNumberSInt32Type, &small), row.fits32);
        EXPECT_EQ(CFNumberGetValue(row.number.get(), kCFNumberSInt64Type, &large), row.fits64);
        EXPECT_EQ(CFNumberGetValue(row.number.get(), kCFNumberDoubleType, &real), row.fitsDouble);
    }
    EXPECT_EQ(number(1e30)->integerValue(), kMost);
    EXPECT_EQ(number(-1e30)->integerValue(), kLeast);
}

TEST(CFEqual, ComparesTypeAndValue) {
    EXPECT_TRUE(CFEqual(nullptr, nullptr));
    EXPECT_FALSE(CFEqual(CFSTR("1"), nullptr));
    EXPECT_FALSE(CFEqual(CFSTR("1"), number(1.0).get()));
    EXPECT_FALSE(CFEqual(kCFBooleanTrue, number(1.0).get()));
    EXPECT_TRUE(CFEqual(number(std::int64_t{4}).get(), number(4.0).get()));
    EXPECT_EQ(CFHash(number(std::int64_t{4}).get()), CFHash(number(4.0).get()));
    EXPECT_FALSE(CFEqual(number((std::int64_t{1} << 53) + 1).get(), number(0x1p53).get()));
    EXPECT_TRUE(CFEqual(number(NAN).get(), number(-NAN).get())) << "not a number, both";
    EXPECT_EQ(CFHash(number(NAN).get()), CFHash(number(-NAN).get()));
    EXPECT_FALSE(CFEqual(number(NAN).get(), number(1.0).get()));

    const CFType* items[] = {CFSTR("a"), kCFBooleanTrue};
    const auto array = CFArrayCreate(items);
    EXPECT_TRUE(CFEqual(array.get(), CFArrayCreate(items).get()));
    EXPECT_FALSE(CFEqual(array.get(), CFArrayCreate(std::span(items).first(1)).get()));
}

TEST(CFURL, PathsAreAbsoluteWithoutTrailingSlash) {
    const auto path = [](const char* text) {
        return CFURLCreateFromFileSystemRepresentation(text, true)->path();
    };
    EXPECT_EQ(path("/a/b//"), "/a/b");
    EXPECT_EQ(path("/"), "/");
    EXPECT_THAT(path("x"), testing::MatchesRegex("/.*/x"));
    EXPECT_FALSE(CFURLCreateFromFileSystemRepresentation("", true));

    const auto root = CFURLCreateWithFileSystemPath(CFSTR("/"), true);
    const auto name = CFStringCreateWithUTF8("\xC3\xA9t\xC3\xA9");
    const auto url = CFURLCreateCopyAppendingPathComponent(root.get(), name.get(), false);
    EXPECT_EQ(url->path(), "/\xC3\xA9t\xC3\xA9");
    EXPECT_TRUE(CFEqual(CFURLCopyLastPathComponent(url.get()).get(), name.get()));
}

} // namespace
