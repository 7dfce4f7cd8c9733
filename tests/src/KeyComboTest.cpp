#include "src/keycombo.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/HIToolbox/FunctionKeys.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

std::string name(UInt32 modifiers, SInt32 keyCode) {
    const auto text = createKeyComboString(modifiers, keyCode);
    return text ? CFStringToUTF8(text.get()) : "null";
}

/// Another program writes this user's global preferences, as a property list's entries.
void writeGlobalPreferences(const std::string& entries) {
    const auto folder = std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / ".GlobalPreferences.plist")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" << entries
        << "</dict></plist>";
}

void writeFnState(const std::string& value) {
    writeGlobalPreferences("<key>com.apple.keyboard.fnState</key>" + value);
}

/// By virtual key code, with fn needed.
constexpr const char* kNames[128] = {
    // clang-format off
    "A", "S", "D", "F", "H", "G", "Z", "X",
    "C", "V", "", "B", "Q", "W", "E", "R",
    "Y", "T", "1", "2", "3", "4", "6", "5",
    "=", "9", "7", "-", "8", "0", "]", "O",
    "U", "[", "I", "P", "return", "L", "J", "'",
    "k", ";", "\\", ",", "/", "N", "M", ".",
    "tab", "space", "`", "delete", "enter", "esc", "⌃", "⌘",
    "⇧", "caps lock", "⌥", "⌃", "⇧", "⌥", "⌃", "",
    "", " keypad .", "", " keypad *", "", " keypad +", "", "clear",
    "", "", "", " keypad /", "enter", "", " keypad -", "",
    "", " keypad =", " keypad 0", " keypad 1", " keypad 2", " keypad 3", " keypad 4", " keypad 5",
    " keypad 6", " keypad 7", "", " keypad 8", " keypad 9", "", "", "",
    "F5", " fn F6", " fn F7", " fn F3", " fn F8", " fn F9", "", " fn F11",
    "", " fn F13", "F16", " fn F14", "", " fn F10", "", " fn F12",
    "", " fn F15", " fn help", "home", "page up", "⌦", "F4", " fn end",
    "F2", " fn page down", " fn F1", "⇠", "⇢", "⇣", "⇡", "",
    // clang-format on
};

std::string withoutFn(std::string text) {
    if (text.starts_with(" fn "))
        text.erase(0, 4);
    return text;
}

TEST(KeyComboTest, NamesEveryKey) {
    for (const bool standard : {false, true}) {
        writeFnState(standard ? "<true/>" : "<false/>");
        for (int key = 0; key < 128; ++key) {
            const std::string expected = standard ? withoutFn(kNames[key]) : kNames[key];
            EXPECT_EQ(name(0, key), expected) << key;
            EXPECT_EQ(name(0x0200, key), "shift+" + expected) << key;
        }
    }
}

TEST(KeyComboTest, NamesCombinations) {
    const struct {
        UInt32 modifiers;
        SInt32 keyCode;
        const char* name;
    } cases[] = {
        {0x1200, 0x07, "control+shift+X"},
        {0x0100, 0x4C, "command+enter"},
        {0x0000, 0x35, "esc"},
        {0x1A00, 0x07, "control+shift+option+X"},
        {0x0800, 0x4C, "option+enter"},
        {0x0200, 0x57, "shift+ keypad 5"},
        {0x0100, 0x7A, "command+ fn F1"},
        {0x1B00, 0x79, "command+control+shift+option+ fn page down"}, // the longest
        {0x0400, 0x00, "A"},                                          // caps lock
        {0xFFFFE4FF, 0x00, "A"},                                      // all that have no name
        {0x0000, 0xFFFF, ""},
        {0x0300, 0xFFFF, "command+shift+"},
        {0x0800, 200, "option+"},
        {0x0800, 128, "option+"},
        {0x0800, 0x7FFFFFFF, "option+"},
        {0x0100, 0x0A, "command+"},
        {0x1B00, -1, "-none-"},
        {0x0100, static_cast<SInt32>(0x8000004C), "-none-"},
    };

    writeFnState("<false/>");
    for (const auto& test : cases)
        EXPECT_EQ(name(test.modifiers, test.keyCode), test.name);
}

TEST(KeyComboTest, ReadsTheFunctionKeysSettingAfreshAtEachCall) {
    const bool kernel = kernelPrefersFunctionKeys("/sys/module/hid_apple/parameters/fnmode");

    const struct {
        const char* entries;
        bool isStandard;
    } cases[] = {
        {"<key>com.apple.keyboard.fnState</key><true/>", true},
        {"<key>com.apple.keyboard.fnState</key><false/>", false},
        {"<key>com.apple.keyboard.fnState</key><true/>", true},
        {"<key>com.apple.keyboard.fnState</key><string>yes</string>", false},
        {"<key>com.apple.keyboard.fnState</key><integer>1</integer>", false},
        {"", kernel},
    };

    for (const auto& test : cases) {
        writeGlobalPreferences(test.entries);
        EXPECT_EQ(name(0, 0x61), test.isStandard ? "F6" : " fn F6") << test.entries;
        EXPECT_EQ(name(0, 0x60), "F5") << test.entries;
    }
}

} // namespace
