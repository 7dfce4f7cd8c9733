#include "src/keycombo.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/HIToolbox/FunctionKeys.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gtest/gtest.h>

namespace {

std::string name(UInt32 modifiers, SInt32 keyCode) {
    const auto text = createKeyComboString(modifiers, keyCode);
    return text ? CFStringToUTF8(text.get()) : "null";
}

/// Another program writes this user's global preferences, as a property list's entries.
void writeGlobalPreferences(const std::string& entries) {
    const std::string folder = std::getenv("XDG_CONFIG_HOME");
    writeFile(folder + "/Preferences/.GlobalPreferences.plist", dictionaryFile(entries));
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

TEST(KeyComboTest, NamesEveryKeyByTheFunctionKeysSettingOfTheMoment) {
    const std::string key = "<key>com.apple.keyboard.fnState</key>";

    const struct {
        std::string entries;
        bool isStandard;
    } cases[] = {
        {key + "<true/>", true},
        {key + "<false/>", false},
        {key + "<integer>1</integer>", false},
        {"", kernelPrefersFunctionKeys("/sys/module/hid_apple/parameters/fnmode")},
    };

    for (const auto& [entries, isStandard] : cases) {
        writeGlobalPreferences(entries);
        for (int code = 0; code < 128; ++code) {
            std::string expected = kNames[code];
            if (isStandard && expected.starts_with(" fn "))
                expected.erase(0, 4);
            EXPECT_EQ(name(0, code), expected) << entries << code;
        }
    }
}

TEST(KeyComboTest, NamesCombinations) {
    const struct {
        UInt32 modifiers;
        SInt32 keyCode;
        const char* name;
    } cases[] = {
        {0x1B00, 0x79, "command+control+shift+option+ fn page down"}, // the longest
        {0xFFFFE4FF, 0x00, "A"},                                      // all that have no name
        {0x0300, 0xFFFF, "command+shift+"},
        {0x1B00, -1, "-none-"},
        {0x0100, static_cast<SInt32>(0x8000004C), "-none-"},
    };

    writeGlobalPreferences("<key>com.apple.keyboard.fnState</key><false/>");
    for (const auto& test : cases)
        EXPECT_EQ(name(test.modifiers, test.keyCode), test.name);
}

} // namespace
