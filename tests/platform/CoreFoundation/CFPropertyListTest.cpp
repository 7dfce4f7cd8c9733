#include "platform/CoreFoundation/CFPropertyList.h"

#include "platform/CoreFoundation/CFDate.h"

#include <clocale>
#include <gmock/gmock.h>
#include <limits>

namespace {

CFRef<const CFType> parse(const std::string& bytes) {
    const auto* start = reinterpret_cast<const UInt8*>(bytes.data());
    return CFPropertyListCreateFromXMLData(CFDataCreate(start, std::ssize(bytes)).get());
}

std::string plist(const std::string& body) {
    return "<plist version=\"1.0\">" + body + "</plist>";
}

std::string repeat(const std::string& text, std::size_t times) {
    std::string result;
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

std::string nested(std::size_t levels) {
    return plist(repeat("<array>", levels) + repeat("</array>", levels));
}

/// The list's content as it is written, without the document around it.
std::string written(const CFType* value) {
    const std::string document = CFPropertyListToXML(value);
    const std::string start = "<plist version=\"1.0\">\n";
    const std::size_t at = document.find(start);
    if (at == std::string::npos)
        return "";
    std::string body = document.substr(at + start.size());
    std::erase(body, '\n');
    std::erase(body, '\t');
    return body.substr(0, body.find("</plist>"));
}

TEST(CFPropertyList, XMLComesBackAsItWas) {
    const std::pair<std::string, std::string> cases[] = {
        {"<string/>", "<string></string>"},
        {"<string>&lt;&amp;&#x41;&#66;<![CDATA[<>]]><!-- no -->z</string>",
         "<string>&lt;&amp;AB&lt;&gt;z</string>"},
        {"<string>\xF0\x9F\x98\x80\xC3\xA9</string>", ""},
        {"<integer>-9223372036854775808</integer>", ""},
        {"<integer> +0x1F </integer>", "<integer>31</integer>"},
        {"<real>0.5</real>", ""},
        {"<real>-infinity</real>", ""},
        {"<true></true>", "<true/>"},
        {"<false/>", ""},
        {"<data> AAEC\n/w== </data>", "<data>AAEC/w==</data>"},
        {"<data/>", "<data></data>"},
        {"<date>2068-12-31T23:59:59Z</date>", ""},
        {"<date>1933-01-01T00:00:00Z</date>", ""},
        {"<array><!-- c --><array/><dict/></array>", "<array><array/><dict/></array>"},
        {"<dict><key>b</key><true/><key></key><dict><key>x</key><string>y</string></dict></dict>",
         "<dict><key></key><dict><key>x</key><string>y</string></dict><key>b</key><true/></dict>"},
    };
    for (const auto& [body, expected] : cases) {
        const auto value = parse(plist(body));
        ASSERT_TRUE(value) << body;
        EXPECT_EQ(written(value.get()), expected.empty() ? body : expected);
    }
}

TEST(CFPropertyList, ProloguesOfOtherToolsAreTaken) {
    for (const std::string start : {"", "\xEF\xBB\xBF", " \r\n", "<?xml version=\"1.0\"?>\n",
                                    "<?xml version='1.0'?><!-- note --><!DOCTYPE plist PUBLIC "
                                    "\"-//A\" \"http://a/b.dtd\">\n"})
        EXPECT_TRUE(parse(start + plist("<true/>") + "\n<!-- end -->\n")) << start;
}

TEST(CFPropertyList, UnsoundXMLIsRefused) {
    const std::string whole = plist("<dict><key>a</key><string>b</string></dict>");
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(parse(whole.substr(0, length))) << "truncated at " << length;

    const std::string bodies[] = {
        "",               // no root
        "<true/><true/>", // a second one
        "<true/>text",
        "<key>a</key>",
        "<dict><key>a</key></dict>", // a key without a value
        "<dict><true/></dict>",      // a value without a key
        "<dict><key>a</key><key>b</key><true/></dict>",
        "<array><key>a</key></array>",
        "<array></dict>",
        "<string>a</key>",
        "<string>a<b/></string>",
        "<string>&nope;</string>",
        "<string>a & b</string>",
        "<string>&#1;</string>",
        "<string>&#xD800;</string>",
        "<string>\x01</string>",
        "<string>\xC3(</string>",
        "<string a='b'>c</string>",
        "<unknown/>",
        "<String>a</String>",
        "<integer/>",
        "<integer>12a</integer>",
        "<integer>--1</integer>",
        "<integer>0x-1</integer>",
        "<integer>9223372036854775808</integer>",
        "<real>1,5</real>",
        "<real></real>",
        "<date>2001-01-01</date>",
        "<date>4001-01-01T00:00:00Z</date>",
        "<data>AAE</data>",
        "<data>A=AA</data>",
        "<true>x</true>",
        "<array><!--><true/>--></array>", // ends early for some parsers
    };
    for (const auto& body : bodies)
        EXPECT_FALSE(parse(plist(body))) << body;

    const std::string sound = plist("<true/>");
    for (const auto& document :
         {std::string("garbage"), std::string(1, '\0'), std::string("<true/>"), sound + "x",
          sound + sound, sound + "<!-- open", "\xFF\xFE" + sound,
          "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + sound, "<!--" + sound, "<?>" + sound,
          sound + std::string(1, '\0')})
        EXPECT_FALSE(parse(document)) << document;
}

TEST(CFPropertyList, LimitsHold) {
    EXPECT_TRUE(parse(nested(kCFPropertyListMaxDepth)));
    EXPECT_FALSE(parse(nested(kCFPropertyListMaxDepth + 1)));
    EXPECT_FALSE(parse(nested(60'000))) << "within the size";
    EXPECT_FALSE(parse(nested(300'000)));
    EXPECT_FALSE(parse("<plist>" + repeat("<array>", 100'000)));

    const std::size_t frame = plist("<string></string>").size();
    const auto sized = [&](std::size_t size) {
        return parse(plist("<string>" + std::string(size - frame, 'a') + "</string>"));
    };
    EXPECT_TRUE(sized(kCFPropertyListMaxSize));
    EXPECT_FALSE(sized(kCFPropertyListMaxSize + 1));
    EXPECT_FALSE(sized(10 * kCFPropertyListMaxSize));
}

/// A binary list of those objects, with one byte for an offset and for a reference.
std::string binary(const std::vector<std::string>& objects, int root = 0) {
    std::string bytes = "bplist00";
    std::string table;
    for (const auto& object : objects) {
        table += static_cast<char>(bytes.size());
        bytes += object;
    }
    const auto tableOffset = static_cast<char>(bytes.size());
    const std::string zeros(7, '\0');
    return bytes + table + std::string(6, '\0') + "\x01\x01" + zeros +
           static_cast<char>(objects.size()) + zeros + static_cast<char>(root) + zeros +
           tableOffset;
}

const std::string kTrue = "\x09";

TEST(CFPropertyList, BinaryIsRead) {
    const auto dictionary =
        parse(binary({"\xD2\x01\x02\x03\x04", "\x51k", "\x61\x4E\x2D", std::string("\xA2\x05\x06"),
                      "\x81\x01\x02", std::string("\x13") + repeat("\xFF", 8), kTrue}));
    EXPECT_EQ(written(dictionary.get()),
              "<dict><key>k</key><array><integer>-1</integer><true/></array>"
              "<key>\xE4\xB8\xAD</key><dict><key>CF$UID</key><integer>258</integer></dict></dict>");
    const auto date = parse(binary({std::string("\x33\x41\xC0") + std::string(6, '\0')}));
    EXPECT_EQ(dynamicCFCast<CFDate>(date.get())->seconds(), 1 << 29);
}

TEST(CFPropertyList, UnsoundBinaryIsRefused) {
    const std::string sound = binary({"\xA1\x01", kTrue});
    ASSERT_TRUE(parse(sound));
    for (std::size_t length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(parse(sound.substr(0, length))) << "truncated at " << length;
    EXPECT_FALSE(parse(sound + '\0'));

    std::vector<std::string> doubling; // each level holds the next one twice: 2^15 texts in the end
    for (char level = 1; level < char{kCFPropertyListMaxDepth}; ++level)
        doubling.push_back("\xA2" + std::string(2, level));
    doubling.push_back("\x5F\x10\x40" + std::string(64, 'x'));
    ASSERT_TRUE(parse(binary({doubling.end() - 3, doubling.end()}, 2)));

    const std::pair<const char*, std::string> cases[] = {
        {"refers to itself", binary({std::string("\xA1\x00", 2)})},
        {"refers in a circle", binary({std::string("\xA1\x01"), std::string("\xA1\x00", 2)})},
        {"reference outside", binary({"\xA1\x07", kTrue})},
        {"root outside", binary({kTrue}, 1)},
        {"no objects", binary({})},
        {"grows in memory", binary(doubling)},
        {"key isn't text", binary({"\xD1\x01\x01", kTrue})},
        {"null object", binary({std::string(1, '\0')})},
        {"set", binary({"\xC1\x01", kTrue})},
        {"integer of 16 bytes", binary({"\x14" + std::string(16, '\x01')})},
        {"longer than the file", binary({"\x5F\x12\x7F\xFF\xFF\xFF"})},
        {"length without integer", binary({"\x5F\x51"})},
        {"not ASCII", binary({"\x51\x80"})},
        {"control character", binary({"\x51\x01"})},
        {"half a surrogate pair", binary({std::string("\x61\xD8\x00", 3)})},
        {"date far away", binary({"\x33\x7F" + std::string(7, '\x01')})},
    };
    for (const auto& [what, bytes] : cases)
        EXPECT_FALSE(parse(bytes)) << what;

    for (std::size_t at = sound.size() - 26; at < sound.size(); ++at) {
        std::string bytes = sound;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x80);
        EXPECT_FALSE(parse(bytes)) << "trailer byte " << at;
    }
}

TEST(CFPropertyList, WhatAListCannotHoldIsNotWritten) {
    const auto text = [](std::u16string units) {
        return CFRef<const CFType>::adopt(new CFString(std::move(units)));
    };
    auto deep = CFRef<const CFType>(CFArrayCreate({}));
    for (std::size_t i = 1; i < kCFPropertyListMaxDepth; ++i) {
        const CFType* item = deep.get();
        deep = CFArrayCreate({&item, 1});
    }
    const CFType* deepest = deep.get();
    const std::pair<CFRef<const CFType>, bool> cases[] = {
        {text(u"tab\t, line\n, \u0080"), true},
        {text(u"\x1"), false},
        {text(u"\xFFFF"), false},
        {text(u"\xD800"), false},
        {text(std::u16string(1, u'\0')), false},
        {deep, true},
        {CFArrayCreate({&deepest, 1}), false},
    };
    for (const auto& [value, writable] : cases) {
        EXPECT_EQ(!CFPropertyListToXML(value.get()).empty(), writable);
        const auto copy = CFPropertyListCreateDeepCopy(value.get());
        EXPECT_EQ(CFEqual(copy.get(), value.get()), writable);
    }
    EXPECT_EQ(CFPropertyListToXML(text(std::u16string(kCFPropertyListMaxSize, u'a')).get()), "");
}

TEST(CFPropertyList, DeepCopyIsOutOfReachOfLaterChanges) {
    const auto inner = CFArrayCreateMutable();
    const auto outer = CFDictionaryCreateMutable();
    CFDictionarySetValue(outer.get(), CFSTR("k"), inner.get());
    const auto copy = CFPropertyListCreateDeepCopy(outer.get());
    CFArrayAppendValue(inner.get(), kCFBooleanTrue);
    EXPECT_EQ(written(copy.get()), "<dict><key>k</key><array/></dict>");
}

} // namespace
