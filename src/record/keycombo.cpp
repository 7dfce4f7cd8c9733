// SPDX-License-Identifier: MIT
#include "src/record/keycombo.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/HIToolbox/FunctionKeys.h"

#include <iterator>

namespace {

// Bits of an entry of keyChars.
constexpr UInt32 kKeyCharString = 0x80000000; ///< the low 16 bits index keyStrings
constexpr UInt32 kKeyCharKeypad = 0x40000000;
constexpr UInt32 kKeyCharFn = 0x20000000; ///< needs fn when F-keys have special functions
constexpr UInt32 kKeyCharMask = 0x0000FFFF;

constexpr const char* keyStrings[] = {
    LOCALIZABLE("Keys", "return"),
    LOCALIZABLE("Keys", "tab"),
    LOCALIZABLE("Keys", "space"),
    LOCALIZABLE("Keys", "delete"),
    LOCALIZABLE("Keys", "enter"),
    LOCALIZABLE("Keys", "esc"),
    LOCALIZABLE("Keys", "caps lock"),
    LOCALIZABLE("Keys", "clear"),
    "F5",
    "F6",
    "F7",
    "F3",
    "F8",
    "F9",
    "F11",
    "F13",
    "F14",
    "F10",
    "F12",
    "F15",
    LOCALIZABLE("Keys", "help"),
    LOCALIZABLE("Keys", "home"),
    LOCALIZABLE("Keys", "page up"),
    "F4",
    LOCALIZABLE("Keys", "end"),
    "F2",
    LOCALIZABLE("Keys", "page down"),
    "F1",
    "F16",
};

enum KeyString : UInt32 {
    // clang-format off
    kReturn, kTab, kSpace, kDelete, kEnter, kEsc, kCapsLock, kClear, kF5, kF6,
    kF7, kF3, kF8, kF9, kF11, kF13, kF14, kF10, kF12, kF15,
    kHelp, kHome, kPageUp, kF4, kEnd, kF2, kPageDown, kF1, kF16,
    // clang-format on
    kKeyStringCount,
};

static_assert(std::size(keyStrings) == kKeyStringCount);

constexpr UInt32 str(KeyString name) {
    return kKeyCharString | name;
}

constexpr UInt32 fn(KeyString name) {
    return kKeyCharFn | str(name);
}

constexpr UInt32 kp(char16_t character) {
    return kKeyCharKeypad | character;
}

// Symbols of keys, as on Apple's keyboards.
constexpr char16_t kControlSymbol = 0x2303;
constexpr char16_t kCommandSymbol = 0x2318;
constexpr char16_t kShiftSymbol = 0x21E7;
constexpr char16_t kOptionSymbol = 0x2325;
constexpr char16_t kForwardDelete = 0x2326;
constexpr char16_t kLeft = 0x21E0;
constexpr char16_t kUp = 0x21E1;
constexpr char16_t kRight = 0x21E2;
constexpr char16_t kDown = 0x21E3;

/// Indexed by virtual key code; 0 for a key without a name.
constexpr UInt32 keyChars[] = {
    // clang-format off
    /* 00 */ u'A', u'S', u'D', u'F', u'H', u'G', u'Z', u'X',
    /* 08 */ u'C', u'V', 0, u'B', u'Q', u'W', u'E', u'R',
    /* 10 */ u'Y', u'T', u'1', u'2', u'3', u'4', u'6', u'5',
    /* 18 */ u'=', u'9', u'7', u'-', u'8', u'0', u']', u'O',
    /* 20 */ u'U', u'[', u'I', u'P', str(kReturn), u'L', u'J', u'\'',
    /* 28 */ u'k', u';', u'\\', u',', u'/', u'N', u'M', u'.',
    /* 30 */ str(kTab), str(kSpace), u'`', str(kDelete), str(kEnter), str(kEsc), kControlSymbol, kCommandSymbol,
    /* 38 */ kShiftSymbol, str(kCapsLock), kOptionSymbol, kControlSymbol, kShiftSymbol, kOptionSymbol, kControlSymbol, 0,
    /* 40 */ 0, kp(u'.'), 0, kp(u'*'), 0, kp(u'+'), 0, str(kClear),
    /* 48 */ 0, 0, 0, kp(u'/'), str(kEnter), 0, kp(u'-'), 0,
    /* 50 */ 0, kp(u'='), kp(u'0'), kp(u'1'), kp(u'2'), kp(u'3'), kp(u'4'), kp(u'5'),
    /* 58 */ kp(u'6'), kp(u'7'), 0, kp(u'8'), kp(u'9'), 0, 0, 0,
    /* 60 */ str(kF5), fn(kF6), fn(kF7), fn(kF3), fn(kF8), fn(kF9), 0, fn(kF11),
    /* 68 */ 0, fn(kF13), str(kF16), fn(kF14), 0, fn(kF10), 0, fn(kF12),
    /* 70 */ 0, fn(kF15), fn(kHelp), str(kHome), str(kPageUp), kForwardDelete, str(kF4), fn(kEnd),
    /* 78 */ str(kF2), fn(kPageDown), fn(kF1), kLeft, kRight, kDown, kUp, 0,
    // clang-format on
};

constexpr SInt32 kKeyCount = 128;
static_assert(std::size(keyChars) == kKeyCount);

constexpr CFIndex kMaxLength = 50; // the longest name has 42 characters, 49 in a translation

void append(CFMutableString* text, const char* more) {
    CFStringAppend(text, createFromUTF8(localized("Keys", more)).get());
}

void appendModifier(CFMutableString* text, UInt32 bit) {
    static constexpr struct {
        UInt32 bit;
        const char* name;
    } kNames[] = {{cmdKey, LOCALIZABLE("Keys", "command+")},
                  {controlKey, LOCALIZABLE("Keys", "control+")},
                  {shiftKey, LOCALIZABLE("Keys", "shift+")},
                  {optionKey, LOCALIZABLE("Keys", "option+")}};

    for (const auto& row : kNames)
        if (row.bit == bit)
            append(text, row.name);
}

void appendKey(CFMutableString* text, UInt32 key) {
    if (key & kKeyCharKeypad)
        append(text, LOCALIZABLE("Keys", " keypad "));
    if ((key & kKeyCharFn) && !functionKeysAreStandard())
        append(text, LOCALIZABLE("Keys", " fn "));
    const UInt32 low = key & kKeyCharMask;
    if (key & kKeyCharString) {
        append(text, keyStrings[low]);
    } else {
        const auto character = static_cast<UniChar>(low);
        CFStringAppendCharacters(text, &character, 1);
    }
}

} // namespace

CFRef<CFString> createKeyComboString(UInt32 modifiers, SInt32 keyCode) {
    if (keyCode < 0)
        return createFromUTF8(localized("Keys", "-none-"));
    auto text = CFStringCreateMutable(kMaxLength);
    if (!text)
        return nullptr;
    for (const UInt32 bit : {cmdKey, controlKey, shiftKey, optionKey})
        appendModifier(text.get(), modifiers & bit);
    if (keyCode < kKeyCount && keyChars[keyCode] != 0)
        appendKey(text.get(), keyChars[keyCode]);
    return text;
}
