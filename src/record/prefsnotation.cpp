// SPDX-License-Identifier: MIT
#include "src/record/prefsnotation.h"

#include "platform/CoreFoundation/StoredValues.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <limits>
#include <locale.h>
#include <string>

namespace {

template <class T>
T get(const void* field) {
    T value;
    std::memcpy(&value, field, sizeof value);
    return value;
}

template <class T>
bool set(void* field, const T& value) {
    std::memcpy(field, &value, sizeof value);
    return true;
}

/// While it exists, this thread's numbers have a decimal point, whatever the user's language.
class PointLocale {
public:
    PointLocale() : previous_(uselocale(portable())) {}

    ~PointLocale() { uselocale(previous_); }

    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    static locale_t portable() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t previous_;
};

/// Reads one conversion for each part, from a text shorter than `Size` bytes. False unless all are
/// there.
template <std::size_t Size, class... Parts>
bool scan(const CFType* value, const char* format, Parts*... parts) {
    char text[Size];
    const PointLocale locale;
    return copyStoredText(value, text, Size) &&
           std::sscanf(text, format, parts...) == int{sizeof...(parts)};
}

/// Null when the text has `Size` bytes or more, which no reader takes.
template <std::size_t Size, class... Parts>
CFRef<const CFString> print(const char* format, Parts... parts) {
    char text[Size];
    const PointLocale locale;
    const int length = std::snprintf(text, Size, format, parts...);
    return length < int{Size} ? CFStringCreateWithCString(text, kCFStringEncodingMacRoman)
                              : nullptr;
}

bool readFlag(const CFType* value, void* field) {
    const auto flag = booleanFromValue(value);
    return flag && set<UInt8>(field, *flag);
}

CFRef<const CFString> writeFlag(const void* field) {
    return CFRef<const CFString>::retain(get<UInt8>(field) ? CFSTR("yes") : CFSTR("no"));
}

bool readDecimal(const CFType* value, void* field) {
    const auto integer = integerFromValue(value);
    return integer && set(field, static_cast<SInt32>(*integer));
}

CFRef<const CFString> writeDecimal(const void* field) {
    return print<64>("%ld", static_cast<long>(get<SInt32>(field)));
}

bool readHexWord(const CFType* value, void* field) {
    unsigned long word;
    return scan<64>(value, "0x%lx", &word) && set(field, static_cast<UInt32>(word));
}

CFRef<const CFString> writeHexWord(const void* field) {
    return print<64>("0x%08lx", static_cast<unsigned long>(get<UInt32>(field)));
}

bool readReal(const CFType* value, void* field) {
    double real;
    return scan<64>(value, "%lf", &real) && set(field, real);
}

CFRef<const CFString> writeReal(const void* field) {
    return print<100>("%f", get<double>(field));
}

bool readRectangle(const CFType* value, void* field) {
    double x, y, width, height;
    return scan<200>(value, "origin(%lf,%lf); size(%lf,%lf)", &x, &y, &width, &height) &&
           set(field, ScanArea{static_cast<float>(x), static_cast<float>(y),
                               static_cast<float>(width), static_cast<float>(height)});
}

CFRef<const CFString> writeRectangle(const void* field) {
    const auto area = get<ScanArea>(field);
    return print<200>("origin(%f,%f); size(%f,%f)", double{area.x}, double{area.y},
                      double{area.width}, double{area.height});
}

bool readColour(const CFType* value, void* field) {
    unsigned red, green, blue;
    return scan<200>(value, "[0x%x,0x%x,0x%x]", &red, &green, &blue) &&
           set(field, LineColor{static_cast<UInt16>(red), static_cast<UInt16>(green),
                                static_cast<UInt16>(blue)});
}

CFRef<const CFString> writeColour(const void* field) {
    const auto color = get<LineColor>(field);
    return print<200>("[0x%04x,0x%04x,0x%04x]", color.red, color.green, color.blue);
}

bool readText(const CFType* value, void* field) {
    // One byte less than the field, since the agent reads back at most 98 characters.
    return copyStoredText(value, static_cast<char*>(field),
                          sizeof(PrefsRecord::pointerImageName) - 1);
}

CFRef<const CFString> writeText(const void* field) {
    return CFStringCreateWithCString(static_cast<const char*>(field), kCFStringEncodingMacRoman);
}

bool readSize(const CFType* value, void* field) {
    constexpr auto fits = [](long side) {
        return side >= std::numeric_limits<SInt16>::min() &&
               side <= std::numeric_limits<SInt16>::max();
    };
    long width, height;
    return scan<100>(value, "(%ld,%ld)", &width, &height) && fits(width) && fits(height) &&
           set(field, ButtonSize{.height = static_cast<SInt16>(height),
                                 .width = static_cast<SInt16>(width)});
}

CFRef<const CFString> writeSize(const void* field) {
    const auto size = get<ButtonSize>(field);
    return print<100>("(%d,%d)", size.width, size.height);
}

/// Copies a list's text. False when it is no list.
bool copyList(const CFType* value, char (&text)[1000]) {
    return copyStoredText(value, text, sizeof text) && text[0] == '[';
}

/// "[ a b c]" from the entries "a ", "b ", "c ".
CFRef<const CFString> list(const std::string& entries) {
    std::string text = "[ " + entries;
    text.back() = ']';
    return CFStringCreateWithCString(text.c_str(), kCFStringEncodingMacRoman);
}

/// `steps` characters further, but at most the end of the text.
const char* skip(const char* text, int steps) {
    while (steps-- > 0 && *text)
        ++text;
    return text;
}

bool readHotKeyList(const CFType* value, void* field) {
    char text[1000];
    if (!copyList(value, text))
        return false;
    auto* entries = static_cast<HotKey*>(field);
    const char* position = skip(text, 2);
    for (int i = 0; i < kNumHotKeys && *position == '{'; ++i) {
        unsigned long keyCode, modifiers;
        if (std::sscanf(position, "{0x%lx,0x%lx}", &keyCode, &modifiers) == 2)
            entries[i] = {static_cast<SInt32>(keyCode), static_cast<UInt32>(modifiers)};
        position = std::strchr(position, '}');
        if (!position)
            break;
        position = skip(position, 2);
    }
    return true;
}

CFRef<const CFString> writeHotKeyList(const void* field) {
    std::string entries;
    for (const HotKey& hotKey : get<std::array<HotKey, kNumHotKeys>>(field)) {
        char entry[64];
        std::snprintf(entry, sizeof entry, "{0x%x,0x%x} ", static_cast<UInt32>(hotKey.keyCode),
                      hotKey.modifiers);
        entries += entry;
    }
    return list(entries);
}

bool readActionList(const CFType* value, void* field) {
    constexpr auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    char text[1000];
    if (!copyList(value, text))
        return false;
    auto* slots = static_cast<UInt8*>(field);
    const char* position = text + 1;
    for (int slot = 0; slot < kNumPaletteSlots; ++slot) {
        if (*position++ != ' ' || !isDigit(*position))
            break;
        unsigned action = 0; // wraps at 2^32, which keeps the low 8 bits right
        while (isDigit(*position))
            action = action * 10 + static_cast<unsigned>(*position++ - '0');
        slots[slot] = static_cast<UInt8>(action);
    }
    return true;
}

CFRef<const CFString> writeActionList(const void* field) {
    std::string entries;
    for (const UInt8 action : get<std::array<UInt8, kNumPaletteSlots>>(field))
        entries += std::to_string(action) + ' ';
    return list(entries);
}

} // namespace

constexpr PrefsNotation kFlagNotation{readFlag, writeFlag};
constexpr PrefsNotation kDecimalNotation{readDecimal, writeDecimal};
constexpr PrefsNotation kHexWordNotation{readHexWord, writeHexWord};
constexpr PrefsNotation kRealNotation{readReal, writeReal};
constexpr PrefsNotation kRectangleNotation{readRectangle, writeRectangle};
constexpr PrefsNotation kColourNotation{readColour, writeColour};
constexpr PrefsNotation kTextNotation{readText, writeText};
constexpr PrefsNotation kHotKeyListNotation{readHotKeyList, writeHotKeyList};
constexpr PrefsNotation kSizeNotation{readSize, writeSize};
constexpr PrefsNotation kActionListNotation{readActionList, writeActionList};

bool copyStoredText(const CFType* value, char* buffer, CFIndex bufferSize) {
    const auto* string = dynamicCFCast<CFString>(value);
    if (!string)
        return false;
    if (CFStringGetCString(string, buffer, bufferSize, kCFStringEncodingMacRoman))
        return true;
    buffer[0] = '\0';
    return false;
}
