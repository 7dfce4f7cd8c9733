// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <regex>

namespace {

CFRef<const CFType> parse(const std::string& bytes) {
    const auto* start = reinterpret_cast<const UInt8*>(bytes.data());
    return CFPropertyListCreateFromXMLData(CFDataCreate(start, std::ssize(bytes)).get());
}

std::string plist(const std::string& body) {
    return "<plist version=\"1.0\">" + body + "</plist>";
}

/// The list as it is written, without the surrounding document.
std::string written(const CFType* value) {
    const std::string body = std::regex_replace(propertyListToXML(value), std::regex("[\n\t]"), "");
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
        // Out of range, or written by another program: kept.
        {"<array><date>4001-01-01T00:00:00Z</date><date>0001-12-31T23:59:59Z</date>"
         "<integer>9223372036854775808</integer><real>1e999</real></array>",
         ""},
        {"<dict><key/><string>&#13;</string></dict>",
         "<dict><key></key><string>&#13;</string></dict>"},
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

TEST(CFPropertyList, EncodingsAndDocumentTypesAreRead) {
    std::string littleEndian = "\xFF\xFE", bigEndian = "\xFE\xFF";
    for (const char c : plist("<string>\xE9</string>")) {
        littleEndian += {c, '\0'};
        bigEndian += {'\0', c};
    }
    for (const std::string& document :
         {littleEndian, bigEndian,
          "<?xml version='1.0' encoding='ISO-8859-1'?>" + plist("<string>\xE9</string>"),
          "<!DOCTYPE plist [<!ELEMENT plist ANY><!ENTITY e '\xC3\xA9'>]>" +
              plist("<string>&e;</string>")})
        EXPECT_EQ(written(parse(document).get()), "<string>\xC3\xA9</string>") << document;
}

TEST(CFPropertyList, LimitsHold) {
    const auto nested = [](std::size_t levels) {
        return parse(plist(repeated(levels, "<array>") + repeated(levels, "</array>")));
    };
    EXPECT_TRUE(nested(kPropertyListMaxDepth));
    EXPECT_FALSE(nested(kPropertyListMaxDepth + 1));
    EXPECT_FALSE(parse("<plist>" + repeated(100'000, "<array>")));
    std::string attributes;
    for (int i = 0; i < 60'000; ++i)
        attributes += " a" + std::to_string(i) + "='>'";
    const std::string crowded = "<plist" + attributes + "><true/></plist>";
    std::string wide = "\xFF\xFE";
    for (const char c : crowded)
        wide += {c, '\0'};
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(parse(crowded));
    EXPECT_FALSE(parse(wide));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    const std::string signs = "<string>" + std::string(60'000, '=') + "</string>";
    EXPECT_EQ(written(parse(plist("<!-- '<\" -->" + signs)).get()), signs);
    const std::string sound = plist("<true/>");
    const std::size_t room = kPropertyListMaxSize - sound.size();
    EXPECT_TRUE(parse(sound + std::string(room, '\n')));
    EXPECT_FALSE(parse(sound + std::string(room + 1, '\n')));
}

/// A binary list of those objects, with one byte per offset and per reference.
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
    const std::string noughts(15, '\0');
    const auto dictionary =
        parse(binary({"\xD2\x01\x02\x03\x04", "\x51k", "\x61\x4E\x2D", "\xA4\x05\x06\x07\x08",
                      "\x33\x41\xC0" + noughts.substr(9), "\x13" + std::string(8, '\xFF'), kTrue,
                      "\x14\x80" + noughts, "\x33\x7F" + std::string(7, '\x01')}));
    EXPECT_EQ(written(dictionary.get()),
              "<dict><key>k</key><array><integer>-1</integer><true/>"
              "<integer>0x80000000000000000000000000000000</integer>"
              "<date>9999-12-31T23:59:59Z</date></array>"
              "<key>\xE4\xB8\xAD</key><date>2018-01-05T18:48:32Z</date></dict>");
}

// Other unsound lists are in tests/fuzz/corpus/propertylist.
TEST(CFPropertyList, WhatIsCutOffOrHasAnotherTrailerIsRefused) {
    const std::string xml = plist("<dict><key>a</key><string>b</string></dict>");
    const std::string sound = binary({"\xA1\x01", kTrue});
    for (const std::string& whole : {xml, sound}) {
        ASSERT_TRUE(parse(whole));
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(parse(whole.substr(0, length))) << "cut off at " << length;
    }
    EXPECT_FALSE(parse(binary({"\x33\x7F\xF8" + std::string(6, '\0')}))) << "no date";
    EXPECT_FALSE(parse("<!DOCTYPE plist [<!ENTITY e SYSTEM 'file:///e'>]>" +
                       plist("<string>a&e;b</string>")));
    for (std::size_t at = sound.size() - 26; at < sound.size(); ++at) {
        std::string bytes = sound;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x80);
        EXPECT_FALSE(parse(bytes)) << "trailer byte " << at;
    }
}

} // namespace
