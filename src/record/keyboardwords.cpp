// SPDX-License-Identifier: MIT
#include "src/record/keyboardwords.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/record/keycombo.h"

#include <algorithm>
#include <span>
#include <tuple>

namespace {

struct KeyName {
    UInt16 code;
    const char* name; ///< of the table "Keyboard"
};

/// Keys that type no character, in the order of a list.
constexpr KeyName kNames[] = {
    {0x7A, "F1"},
    {0x78, "F2"},
    {0x63, "F3"},
    {0x76, "F4"},
    {0x60, "F5"},
    {0x61, "F6"},
    {0x62, "F7"},
    {0x64, "F8"},
    {0x65, "F9"},
    {0x6D, "F10"},
    {0x67, "F11"},
    {0x6F, "F12"},
    {0x69, LOCALIZABLE("Keyboard", "F13 or Print Screen")},
    {0x6B, LOCALIZABLE("Keyboard", "F14 or Scroll Lock")},
    {0x71, LOCALIZABLE("Keyboard", "F15 or Pause")},
    {0x6A, "F16"},
    {0x40, "F17"},
    {0x4F, "F18"},
    {0x50, "F19"},
    {0x5A, "F20"},
    {0x35, LOCALIZABLE("Keyboard", "Esc")},
    {0x30, LOCALIZABLE("Keyboard", "Tab")},
    {0x31, LOCALIZABLE("Keyboard", "Space")},
    {0x24, LOCALIZABLE("Keyboard", "Enter")},
    {0x33, LOCALIZABLE("Keyboard", "Backspace")},
    {0x72, LOCALIZABLE("Keyboard", "Insert")},
    {0x75, LOCALIZABLE("Keyboard", "Delete")},
    {0x73, LOCALIZABLE("Keyboard", "Home")},
    {0x77, LOCALIZABLE("Keyboard", "End")},
    {0x74, LOCALIZABLE("Keyboard", "Page Up")},
    {0x79, LOCALIZABLE("Keyboard", "Page Down")},
    {0x7B, LOCALIZABLE("Keyboard", "Left arrow")},
    {0x7C, LOCALIZABLE("Keyboard", "Right arrow")},
    {0x7E, LOCALIZABLE("Keyboard", "Up arrow")},
    {0x7D, LOCALIZABLE("Keyboard", "Down arrow")},
    {0x6E, LOCALIZABLE("Keyboard", "Menu")},
    {0x4A, LOCALIZABLE("Keyboard", "Mute")},
    {0x49, LOCALIZABLE("Keyboard", "Quieter")},
    {0x48, LOCALIZABLE("Keyboard", "Louder")},
    {0x47, LOCALIZABLE("Keyboard", "Num Lock")},
    {0x4C, LOCALIZABLE("Keyboard", "keypad Enter")},
};

/// Those of the keypad that type something: its place is said, since other keys type it too.
constexpr KeyName kKeypad[] = {
    {0x52, "0"}, {0x53, "1"}, {0x54, "2"}, {0x55, "3"}, {0x56, "4"}, {0x57, "5"},
    {0x58, "6"}, {0x59, "7"}, {0x5B, "8"}, {0x5C, "9"}, {0x41, "."}, {0x45, "+"},
    {0x4E, "-"}, {0x43, "*"}, {0x4B, "/"}, {0x51, "="}, {0x5F, ","},
};

/// Those whose label depends on the layout are below this code, or Japanese.
constexpr UInt16 kCharacterKeys = 0x33;
constexpr UInt16 kJapaneseKeys[] = {0x5D, 0x5E};

const char* nameOf(std::span<const KeyName> names, UInt16 code) {
    const auto found = std::ranges::find(names, code, &KeyName::code);
    return found == names.end() ? nullptr : found->name;
}

/// Without a layout it is what Apple's US keyboard has there.
std::string character(const KeyboardLayout& layout, UInt16 code) {
    if (layout.isKnown() || code >= kCharacterKeys)
        return layout.label(code);
    const auto usual = createKeyComboString(0, code);
    std::string text = usual ? toUTF8(usual.get()) : "";
    if (text.size() == 1 && text[0] >= 'a' && text[0] <= 'z')
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

std::string keyName(const KeyboardLayout& layout, UInt16 code) {
    if (const char* name = nameOf(kNames, code))
        return localized("Keyboard", name);
    if (const char* name = nameOf(kKeypad, code))
        return filled(localized("Keyboard", "keypad %1"), {name});
    return character(layout, code);
}

/// 0 for a letter, 1 for a digit, 2 for anything else.
int kindOf(const std::string& label) {
    const auto first = static_cast<unsigned char>(label[0]);
    const bool isLetter = (first >= 'A' && first <= 'Z') || first >= 0xC3; // from À in UTF-8
    return isLetter ? 0 : first >= '0' && first <= '9' ? 1 : 2;
}

} // namespace

std::string keyboardWords(const KeyboardLayout& layout, UInt32 modifiers, SInt32 keyCode) {
    static constexpr struct {
        UInt32 bit;
        const char* name;
    } kModifiers[] = {{cmdKey, LOCALIZABLE("Keyboard", "Super+")},
                      {controlKey, LOCALIZABLE("Keyboard", "Ctrl+")},
                      {shiftKey, LOCALIZABLE("Keyboard", "Shift+")},
                      {optionKey, LOCALIZABLE("Keyboard", "Alt+")}};

    const std::string key =
        keyCode < 0 || keyCode > 127 ? "" : keyName(layout, static_cast<UInt16>(keyCode));
    std::string words;
    for (const auto& [bit, name] : kModifiers)
        if (modifiers & bit && !key.empty())
            words += localized("Keyboard", name);
    return words + key;
}

std::vector<NamedKey> keysByName(const KeyboardLayout& layout) {
    std::vector<NamedKey> keys;
    const auto add = [&](UInt16 code) {
        const std::string name = keyName(layout, code);
        if (!name.empty() && std::ranges::find(keys, name, &NamedKey::name) == keys.end())
            keys.push_back({name, code});
    };
    for (UInt16 code = 0; code < kCharacterKeys; ++code)
        if (!nameOf(kNames, code))
            add(code);
    for (const UInt16 code : kJapaneseKeys)
        add(code);
    std::ranges::sort(keys, {},
                      [](const NamedKey& key) { return std::tuple(kindOf(key.name), key.name); });
    for (const auto names : {std::span<const KeyName>(kNames), std::span<const KeyName>(kKeypad)})
        for (const KeyName& each : names)
            add(each.code);
    return keys;
}
