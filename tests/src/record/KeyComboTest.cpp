// SPDX-License-Identifier: MIT
#include "src/record/keycombo.h"

#include "platform/HIToolbox/detail/KernelKeyboard.h"
#include "platform/Support/ScanCodes.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <linux/input-event-codes.h>
#include <map>
#include <sstream>

namespace {

std::string name(UInt32 modifiers, SInt32 keyCode) {
    const auto text = createKeyComboString(modifiers, keyCode);
    return text ? toUTF8(text.get()) : "null";
}

/// Writes this user's global preferences, as another program would.
void setFunctionKeys(const std::string& value) {
    const std::string folder = std::getenv("XDG_CONFIG_HOME");
    writeFile(folder + "/Preferences/.GlobalPreferences.plist",
              dictionaryFile("<key>com.apple.keyboard.fnState</key>" + value));
}

/// Names of consecutive keys in the kernel's order. "_" is a blank, a code a key without a name,
/// "--" a key without a code.
const std::map<int, std::string> kKeys = {
    {KEY_RESERVED,
     "-- esc 1 2 3 4 5 6 7 8 9 0 - = delete tab Q W E R T Y U I O P [ ] return ⌃ A S D F G H J k L "
     "; ' ` ⇧ \\ Z X C V B N M , . / ⇧ _keypad_* ⌥ space caps_lock _fn_F1 F2 _fn_F3 F4 F5 _fn_F6 "
     "_fn_F7 _fn_F8 _fn_F9 _fn_F10 clear _fn_F14 _keypad_7 _keypad_8 _keypad_9 _keypad_- _keypad_4 "
     "_keypad_5 _keypad_6 _keypad_+ _keypad_1 _keypad_2 _keypad_3 _keypad_0 _keypad_."},
    {KEY_102ND, "0x0A _fn_F11 _fn_F12 0x5E"},
    {KEY_KPENTER, "enter ⌃ _keypad_/ _fn_F13 ⌥ -- home ⇡ page_up ⇠ ⇢ _fn_end ⇣ _fn_page_down "
                  "_fn_help ⌦ -- 0x4A 0x49 0x48 -- _keypad_= -- _fn_F15 -- 0x5F 0x68 0x66 0x5D ⌘ ⌃ "
                  "0x6E"},
    {KEY_HELP, "_fn_help"},
    {KEY_F13, "_fn_F13 _fn_F14 _fn_F15 F16 0x40 0x4F 0x50 0x5A"},
};

TEST(KeyComboTest, EveryKeyHasTheNameAndCodeOfItsPlaceAndNoOtherHasOne) {
    std::map<int, std::string> keys;
    for (const auto& [first, names] : kKeys) {
        std::istringstream words(names);
        int key = first;
        for (std::string word; words >> word; ++key)
            keys[key] = word;
    }
    setFunctionKeys("<false/>");
    for (int key = -8; key < 500; ++key) {
        SCOPED_TRACE(key);
        const UInt16 code = virtualKeyCode(static_cast<UInt32>(key + 8)); // as X counts
        EXPECT_EQ(std::ranges::count(scanCodes(code), static_cast<UInt32>(key + 8)),
                  code == kNoKeyCode ? 0 : 1);
        std::string called = keys.contains(key) ? keys[key] : "--";
        if (called == "--" || called.starts_with("0x")) {
            EXPECT_EQ(code, called == "--" ? kNoKeyCode : std::stoul(called, nullptr, 16));
            continue;
        }
        std::ranges::replace(called, '_', ' ');
        EXPECT_EQ(name(0, code), called);
    }
    EXPECT_EQ(virtualKeyCode(~0U), kNoKeyCode);
}

TEST(KeyComboTest, NamesCombinationsByTheFunctionKeysSettingOfTheMoment) {
    const struct {
        const char* functionKeys;
        UInt32 modifiers;
        SInt32 keyCode;
        const char* name;
    } cases[] = {
        {"<false/>", 0x1B00, 0x79, "command+control+shift+option+ fn page down"}, // the longest
        {"<true/>", 0, 0x79, "page down"},
        {"<integer>1</integer>", 0, 0x79, " fn page down"},
        {"<true/>", 0, 0x60, "F5"},
        {"<true/>", 0xFFFFE4FF, 0x00, "A"}, // all that have no name
        {"<true/>", 0x0300, 0xFFFF, "command+shift+"},
        {"<true/>", 0, 0x34, "enter"},
        {"<true/>", 0, 0x0A, ""},
        {"<true/>", 0x1B00, -1, "-none-"},
        {"<true/>", 0x0100, static_cast<SInt32>(0x8000004C), "-none-"},
    };

    for (const auto& test : cases) {
        setFunctionKeys(test.functionKeys);
        EXPECT_EQ(name(test.modifiers, test.keyCode), test.name) << test.functionKeys;
    }
}

TEST(KeyComboTest, ReadsWhatTheKernelDoesWithFunctionKeys) {
    const auto file = makeSandboxFolder("") / "fnmode";
    EXPECT_TRUE(kernelPrefersFunctionKeys(file.c_str())) << "there is no such keyboard";
    for (const char* text : {"2\n", "1\n", "3\n", "", "two"}) {
        writeFile(file, text);
        EXPECT_EQ(kernelPrefersFunctionKeys(file.c_str()), *text == '2') << text;
    }
}

} // namespace
