#include "platform/CoreFoundation/CFString.h"

#include <array>
#include <gmock/gmock.h>

namespace {

/// The string's bytes in the encoding; "!" when it can't be converted.
std::string bytesOf(const CFString* string, CFStringEncoding encoding) {
    std::array<char, 600> buffer{};
    return CFStringGetCString(string, buffer.data(), buffer.size(), encoding) ? buffer.data() : "!";
}

CFRef<CFString> stringOf(std::u16string text) {
    return CFRef<CFString>::adopt(new CFString(std::move(text)));
}

TEST(CFString, MacRomanHasEveryByteAndComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const auto string = CFStringCreateWithCString(all.c_str(), kCFStringEncodingMacRoman);
    ASSERT_TRUE(string);
    EXPECT_EQ(bytesOf(string.get(), kCFStringEncodingMacRoman), all);

    const std::pair<unsigned, char16_t> places[] = {
        {0x41, u'A'},      {0x80, u'\u00C4'}, {0x8E, u'\u00E9'},
        {0xA5, u'\u2022'}, {0xBD, u'\u03A9'}, {0xCA, u'\u00A0'},
        {0xDB, u'\u20AC'}, {0xF0, u'\uF8FF'}, {0xFF, u'\u02C7'}};
    for (const auto& [byte, character] : places)
        EXPECT_EQ(string->text()[byte - 1], character) << std::hex << byte;
}

TEST(CFString, CharactersThatAnEncodingLacksAreRefused) {
    const struct {
        std::u16string text;
        std::string macRoman, ascii, utf8;
    } cases[] = {
        {u"", "", "", ""},
        {u"plain", "plain", "plain", "plain"},
        {u"\u00E9", "\x8E", "!", "\xC3\xA9"},
        {u"\u4E2D", "!", "!", "\xE4\xB8\xAD"},
        {u"\U0001F600", "!", "!", "\xF0\x9F\x98\x80"},
        {u"a\xD83D", "!", "!", "!"},
        {u"\xDE00z", "!", "!", "!"},
    };

    for (const auto& row : cases) {
        const auto string = stringOf(row.text);
        EXPECT_EQ(bytesOf(string.get(), kCFStringEncodingMacRoman), row.macRoman);
        EXPECT_EQ(bytesOf(string.get(), kCFStringEncodingASCII), row.ascii);
        EXPECT_EQ(bytesOf(string.get(), kCFStringEncodingUTF8), row.utf8);
    }
    EXPECT_EQ(CFStringToUTF8(stringOf(u"a\xD83Dz").get()), "a\xEF\xBF\xBDz");
}

TEST(CFString, InvalidBytesMakeNoString) {
    for (const char* bytes :
         {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xED\xA0\x80",
          "\xE4\xB8", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF"})
        EXPECT_FALSE(CFStringCreateWithCString(bytes, kCFStringEncodingUTF8)) << bytes;
    EXPECT_EQ(CFStringCreateWithUTF8("\xF4\x8F\xBF\xBF")->text(), u"\U0010FFFF");
    EXPECT_FALSE(CFStringCreateWithCString("\x80", kCFStringEncodingASCII));
    EXPECT_FALSE(CFStringCreateWithCString(nullptr, kCFStringEncodingUTF8));
}

TEST(CFString, BufferMustHoldTheTerminatorToo) {
    const auto string = CFStringCreateWithUTF8("12345");
    std::array<char, 6> buffer{};
    EXPECT_FALSE(CFStringGetCString(string.get(), buffer.data(), 5, kCFStringEncodingMacRoman));
    EXPECT_TRUE(CFStringGetCString(string.get(), buffer.data(), 6, kCFStringEncodingMacRoman));
    EXPECT_STREQ(buffer.data(), "12345");
}

TEST(CFString, MutableStringStopsAtItsLimit) {
    const auto string = CFStringCreateMutable(6);
    CFStringAppend(string.get(), CFSTR("abc"));
    CFStringAppendCString(string.get(), "\x8E", kCFStringEncodingMacRoman);
    CFStringAppendCString(string.get(), "\x80", kCFStringEncodingASCII);
    CFStringAppendCharacters(string.get(), u"xyz", 3);
    CFStringAppend(string.get(), CFSTR("more"));
    EXPECT_EQ(string->text(), u"abc\u00E9xy");
}

TEST(CFString, ConstantsAreMadeOnce) {
    const std::string copy = "same";
    EXPECT_EQ(CFSTR("same"), CFSTR(copy.c_str()));
    EXPECT_NE(CFSTR("same"), CFSTR("other"));
}

} // namespace
