// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFString.h"

#include <array>
#include <gtest/gtest.h>

namespace {

/// The string's bytes in the encoding; "!" when it can't be converted.
std::string bytesOf(const CFString* string, CFStringEncoding encoding) {
    std::array<char, 600> buffer{};
    return CFStringGetCString(string, buffer.data(), buffer.size(), encoding) ? buffer.data() : "!";
}

TEST(CFString, MacRomanHasEveryByteAndComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const auto string = CFStringCreateWithCString(all.c_str(), kCFStringEncodingMacRoman);
    EXPECT_EQ(bytesOf(string.get(), kCFStringEncodingMacRoman), all);
    EXPECT_EQ(string->text().substr(0xA4, 3), u"\u2022\u00B6\u00DF");
    EXPECT_EQ(string->text().substr(0xDA, 2), u"\u20AC\u2039");
}

TEST(CFString, WhatAnEncodingLacksIsRefused) {
    const struct {
        std::u16string text;
        std::string macRoman, ascii, utf8;
    } cases[] = {{u"\u00E9", "\x8E", "!", "\xC3\xA9"},
                 {u"\U0001F600", "!", "!", "\xF0\x9F\x98\x80"},
                 {u"a\xD83D", "!", "!", "!"}};

    for (const auto& row : cases) {
        const CFString string(row.text);
        EXPECT_EQ(bytesOf(&string, kCFStringEncodingMacRoman), row.macRoman);
        EXPECT_EQ(bytesOf(&string, kCFStringEncodingASCII), row.ascii);
        EXPECT_EQ(bytesOf(&string, kCFStringEncodingUTF8), row.utf8);
    }
    for (const char* bytes : {"\x80", "\xC0\x80", "\xC3(", "\xE4\xB8", "\xED\xA0\x80",
                              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xFF"})
        EXPECT_FALSE(CFStringCreateWithCString(bytes, kCFStringEncodingUTF8)) << bytes;
}

} // namespace
