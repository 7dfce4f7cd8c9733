#include "src/prefsforms.h"

#include "platform/CoreFoundation/CFPreferences.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

namespace {

// Doubles lie at 4-byte alignment in the record, so fields are copied, never dereferenced in place.
template <class T>
T read(const void* field) {
    T value;
    std::memcpy(&value, field, sizeof value);
    return value;
}

template <class T>
void write(void* field, const T& value) {
    std::memcpy(field, &value, sizeof value);
}

void loadFlag(const CFString* key, void* field) {
    bool exists = false;
    const bool value = CFPreferencesGetAppBooleanValue(key, kAgentBundleID, &exists);
    if (exists)
        write<UInt8>(field, value);
}

void saveFlag(const CFString* key, const void* field) {
    static const CFString* const yes = CFSTR("yes");
    static const CFString* const no = CFSTR("no");
    CFPreferencesSetAppValue(key, read<UInt8>(field) ? yes : no, kAgentBundleID);
}

void loadDecimal(const CFString* key, void* field) {
    bool exists = false;
    const CFIndex value = CFPreferencesGetAppIntegerValue(key, kAgentBundleID, &exists);
    if (exists)
        write(field, static_cast<SInt32>(value));
}

void saveDecimal(const CFString* key, const void* field) {
    setPrefSInt32(key, read<SInt32>(field));
}

void loadHexWord(const CFString* key, void* field) {
    auto value = read<UInt32>(field);
    getPrefUInt32(key, &value);
    write(field, value);
}

void saveHexWord(const CFString* key, const void* field) {
    setPrefUInt32(key, read<UInt32>(field));
}

void loadReal(const CFString* key, void* field) {
    auto value = read<double>(field);
    getPrefDouble(key, &value);
    write(field, value);
}

void saveReal(const CFString* key, const void* field) {
    setPrefDouble(key, read<double>(field));
}

void loadRectangle(const CFString* key, void* field) {
    char text[200];
    double x, y, width, height;
    if (getPrefStr(key, text, sizeof text) &&
        std::sscanf(text, "origin(%lf,%lf); size(%lf,%lf)", &x, &y, &width, &height) == 4)
        write(field, ScanArea{static_cast<float>(x), static_cast<float>(y),
                              static_cast<float>(width), static_cast<float>(height)});
}

void saveRectangle(const CFString* key, const void* field) {
    const auto area = read<ScanArea>(field);
    char text[200];
    std::snprintf(text, sizeof text, "origin(%f,%f); size(%f,%f)", static_cast<double>(area.x),
                  static_cast<double>(area.y), static_cast<double>(area.width),
                  static_cast<double>(area.height));
    setPrefStr(key, text);
}

void loadColour(const CFString* key, void* field) {
    char text[200];
    unsigned red, green, blue;
    if (getPrefStr(key, text, sizeof text) &&
        std::sscanf(text, "[0x%x,0x%x,0x%x]", &red, &green, &blue) == 3)
        write(field, LineColor{static_cast<UInt16>(red), static_cast<UInt16>(green),
                               static_cast<UInt16>(blue)});
}

void saveColour(const CFString* key, const void* field) {
    const auto color = read<LineColor>(field);
    char text[200];
    std::snprintf(text, sizeof text, "[0x%04x,0x%04x,0x%04x]", color.red, color.green, color.blue);
    setPrefStr(key, text);
}

void loadText(const CFString* key, void* field) {
    // One byte less than the field has: what the agent reads back is at most 98 characters.
    getPrefStr(key, static_cast<char*>(field), sizeof(PrefsRecord::pointerImageName) - 1);
}

void saveText(const CFString* key, const void* field) {
    setPrefStr(key, static_cast<const char*>(field));
}

void loadSize(const CFString* key, void* field) {
    constexpr auto fits = [](long value) {
        return value >= std::numeric_limits<SInt16>::min() &&
               value <= std::numeric_limits<SInt16>::max();
    };
    char text[100];
    long width, height;
    if (getPrefStr(key, text, sizeof text) &&
        std::sscanf(text, "(%ld,%ld)", &width, &height) == 2 && fits(width) && fits(height))
        write(field, ButtonSize{.height = static_cast<SInt16>(height),
                                .width = static_cast<SInt16>(width)});
}

void saveSize(const CFString* key, const void* field) {
    const auto size = read<ButtonSize>(field);
    char text[100];
    std::snprintf(text, sizeof text, "(%d,%d)", size.width, size.height);
    setPrefStr(key, text);
}

/// Fetches a list's text; false when it is no list.
bool getList(const CFString* key, char (&text)[1000]) {
    return getPrefStr(key, text, sizeof text) && text[0] == '[';
}

/// Stores "[ a b c]" from the entries "a ", "b ", "c ".
void setList(const CFString* key, const std::string& entries) {
    std::string text = "[ " + entries;
    text.back() = ']';
    setPrefStr(key, text.c_str());
}

/// `steps` characters on, or the end of the text if that comes first.
const char* skip(const char* text, int steps) {
    while (steps-- > 0 && *text)
        ++text;
    return text;
}

void loadHotKeyList(const CFString* key, void* field) {
    char text[1000];
    if (!getList(key, text))
        return;
    auto* entries = static_cast<HotKey*>(field);
    const char* position = skip(text, 2);
    for (int i = 0; i < kNumHotKeys && *position == '{'; ++i) {
        unsigned long keyCode, modifiers;
        if (std::sscanf(position, "{0x%lx,0x%lx}", &keyCode, &modifiers) == 2)
            entries[i] = {static_cast<SInt32>(keyCode), static_cast<UInt32>(modifiers)};
        position = std::strchr(position, '}');
        if (!position)
            return;
        position = skip(position, 2);
    }
}

void saveHotKeyList(const CFString* key, const void* field) {
    std::string entries;
    for (const HotKey& hotKey : read<std::array<HotKey, kNumHotKeys>>(field)) {
        char entry[64];
        std::snprintf(entry, sizeof entry, "{0x%x,0x%x} ", static_cast<UInt32>(hotKey.keyCode),
                      hotKey.modifiers);
        entries += entry;
    }
    setList(key, entries);
}

void loadActionList(const CFString* key, void* field) {
    constexpr auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    char text[1000];
    if (!getList(key, text))
        return;
    auto* slots = static_cast<UInt8*>(field);
    const char* position = text + 1;
    for (int slot = 0; slot < kNumPaletteSlots; ++slot) {
        if (*position++ != ' ' || !isDigit(*position))
            return;
        unsigned action = 0; // wraps at 2^32, which keeps the low 8 bits right
        while (isDigit(*position))
            action = action * 10 + static_cast<unsigned>(*position++ - '0');
        slots[slot] = static_cast<UInt8>(action);
    }
}

void saveActionList(const CFString* key, const void* field) {
    std::string entries;
    for (const UInt8 action : read<std::array<UInt8, kNumPaletteSlots>>(field))
        entries += std::to_string(action) + ' ';
    setList(key, entries);
}

} // namespace

constexpr PrefsForm kFlagForm{loadFlag, saveFlag};
constexpr PrefsForm kDecimalForm{loadDecimal, saveDecimal};
constexpr PrefsForm kHexWordForm{loadHexWord, saveHexWord};
constexpr PrefsForm kRealForm{loadReal, saveReal};
constexpr PrefsForm kRectangleForm{loadRectangle, saveRectangle};
constexpr PrefsForm kColourForm{loadColour, saveColour};
constexpr PrefsForm kTextForm{loadText, saveText};
constexpr PrefsForm kHotKeyListForm{loadHotKeyList, saveHotKeyList};
constexpr PrefsForm kSizeForm{loadSize, saveSize};
constexpr PrefsForm kActionListForm{loadActionList, saveActionList};
