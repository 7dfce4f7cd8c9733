#include "platform/CoreFoundation/CFPropertyList.h"

#include <gtest/gtest.h>
#include <regex>

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

/// The list's content as it is written, without the document around it.
std::string written(const CFType* value) {
    const std::string body =
        std::regex_replace(CFPropertyListToXML(value), std::regex("[\n\t]"), "");
    const std::size_t start = body.find("<plist version=\"1.0\">") + 21;
    return body.substr(start, body.find("</plist>") - start);
}

TEST(CFPropertyList, XMLComesBackAsItWas) {
    const std::pair<std::string, std::string> cases[] = {
        {"<string>&lt;&amp;&#x41;&#66;<![CDATA[<>]]><!-- no -->\xC3\xA9</string>",
         "<string>&lt;&amp;AB&lt;&gt;\xC3\xA9</string>"},
        {"<integer>-9223372036854775808</integer>", ""},
        {"<real>-infinity</real>", ""},
        {"<data> AAEC\n/w== </data>", "<data>AAEC/w==</data>"},
        {"<date>1933-01-01T00:00:00Z</date>", ""},
        {"<dict><key>b</key><true></true><key></key><array><dict/></array></dict>",
         "<dict><key></key><array><dict/></array><key>b</key><true/></dict>"}};
    for (const auto& [body, expected] : cases) {
        const auto value = parse("\xEF\xBB\xBF<?xml version='1.0'?><!-- note --><!DOCTYPE plist "
                                 "PUBLIC \"-//A\" \"http://a/b.dtd\">\n" +
                                 plist(body) + "\n<!-- end -->\n");
        ASSERT_TRUE(value) << body;
        EXPECT_EQ(written(value.get()), expected.empty() ? body : expected);
    }
}

TEST(CFPropertyList, UnsoundXMLIsRefused) {
    const std::string whole = plist("<dict><key>a</key><string>b</string></dict>");
    ASSERT_TRUE(parse(whole));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(parse(whole.substr(0, length))) << "truncated at " << length;
    for (const char* body :
         {"<true/><true/>", "<true/>text", "<dict><key>a</key></dict>", "<dict><true/></dict>",
          "<array><key>a</key></array>", "<array></dict>", "<string>a<b/></string>",
          "<string>&nope;</string>", "<string>&#1;</string>", "<string>&#xD800;</string>",
          "<string>\xC3(</string>", "<unknown/>", "<integer>12a</integer>",
          "<integer>9223372036854775808</integer>", "<real>1,5</real>",
          "<date>4001-01-01T00:00:00Z</date>", "<data>A=AA</data>",
          "<array><!--><true/>--></array>"}) // ends early for some parsers
        EXPECT_FALSE(parse(plist(body))) << body;
    for (const std::string& document :
         {"<true/>" + std::string(), whole + whole, whole + "<!-- open", "\xFF\xFE" + whole,
          "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + whole, whole + '\0'})
        EXPECT_FALSE(parse(document)) << document;
}

TEST(CFPropertyList, LimitsHold) {
    const auto nested = [](std::size_t levels) {
        return parse(plist(repeat("<array>", levels) + repeat("</array>", levels)));
    };
    EXPECT_TRUE(nested(kCFPropertyListMaxDepth));
    EXPECT_FALSE(nested(kCFPropertyListMaxDepth + 1));
    EXPECT_FALSE(parse("<plist>" + repeat("<array>", 100'000)));
    const std::string sound = plist("<true/>");
    const std::size_t room = kCFPropertyListMaxSize - sound.size();
    EXPECT_TRUE(parse(sound + std::string(room, '\n')));
    EXPECT_FALSE(parse(sound + std::string(room + 1, '\n')));
}

/// A binary list of those objects, with one byte for an offset and for a reference.
std::string binary(const std::vector<std::string>& objects, std::size_t root = 0) {
    std::string bytes = "bplist00", table;
    for (const auto& object : objects) {
        table += static_cast<char>(bytes.size());
        bytes += object;
    }
    std::string trailer(6, '\0');
    trailer += "\x01\x01";
    for (const std::size_t number : {objects.size(), root, bytes.size()})
        trailer += std::string(7, '\0') + static_cast<char>(number);
    return bytes + table + trailer;
}

const std::string kTrue = "\x09";

TEST(CFPropertyList, BinaryIsRead) {
    const auto dictionary = parse(
        binary({"\xD2\x01\x02\x03\x04", "\x51k", "\x61\x4E\x2D", "\xA2\x05\x06",
                "\x33\x41\xC0" + std::string(6, '\0'), "\x13" + std::string(8, '\xFF'), kTrue}));
    EXPECT_EQ(written(dictionary.get()),
              "<dict><key>k</key><array><integer>-1</integer><true/></array>"
              "<key>\xE4\xB8\xAD</key><date>2018-01-05T18:48:32Z</date></dict>");
}

TEST(CFPropertyList, UnsoundBinaryIsRefused) {
    const std::string sound = binary({"\xA1\x01", kTrue});
    ASSERT_TRUE(parse(sound));
    for (std::size_t length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(parse(sound.substr(0, length))) << "truncated at " << length;
    for (std::size_t at = sound.size() - 26; at < sound.size(); ++at) {
        std::string bytes = sound;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x80);
        EXPECT_FALSE(parse(bytes)) << "trailer byte " << at;
    }

    std::vector<std::string> doubling; // each level holds the next one twice: 2^15 texts in the end
    for (char level = 1; level < char{kCFPropertyListMaxDepth}; ++level)
        doubling.push_back("\xA2" + std::string(2, level));
    doubling.push_back("\x5F\x10\x40" + std::string(64, 'x'));
    ASSERT_TRUE(parse(binary({doubling.end() - 3, doubling.end()}, 2)));
    const std::pair<const char*, std::string> cases[] = {
        {"grows in memory", binary(doubling)},
        {"refers in a circle", binary({"\xA1\x01", std::string("\xA1\x00", 2)})},
        {"reference outside", binary({"\xA1\x07", kTrue})},
        {"key isn't text", binary({"\xD1\x01\x01", kTrue})},
        {"longer than the file", binary({"\x5F\x12\x7F\xFF\xFF\xFF"})},
        {"half a surrogate pair", binary({std::string("\x61\xD8\x00", 3)})},
        {"date far away", binary({"\x33\x7F" + std::string(7, '\x01')})}};
    for (const auto& [what, bytes] : cases)
        EXPECT_FALSE(parse(bytes)) << what;
}

} // namespace
