// SPDX-License-Identifier: MIT
#include "src/record/settingwords.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/files/ptrutil.h"
#include "src/record/keycombo.h"
#include "src/record/linecolors.h"
#include "src/record/numbertext.h"
#include "src/record/palactions.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace {

constexpr std::size_t kMostButtonsNamed = 2; ///< of the palette; a swap changes two

constexpr const char* kHotKeyRoles[kNumHotKeys] = {
    LOCALIZABLE("HotKeys", "Turn scanning on or off"), LOCALIZABLE("HotKeys", "Scan"),
    LOCALIZABLE("HotKeys", "Cancel the scan"), LOCALIZABLE("HotKeys", "Show these settings"),
    LOCALIZABLE("HotKeys", "Scan, second key")};

template <class T>
T get(const Setting& setting, const PrefsRecord& record) {
    T value;
    std::memcpy(&value, setting.in(record), sizeof value);
    return value;
}

template <class... Parts>
std::string print(const char* format, Parts... parts) {
    char text[400]; // the longest double has 309 digits before the point
    std::snprintf(text, sizeof text, format, parts...);
    return localizedNumbers(text);
}

std::string choiceText(const Setting& setting, const PrefsRecord& record) {
    const UInt32 choice = wordIn(setting, record);
    return choice < setting.choices.size() ? localized("Choices", setting.choices[choice])
                                           : std::to_string(choice);
}

std::string areaText(const ScanArea& area) {
    if (area.width <= 0 || area.height <= 0)
        return localized("Settings", "none", "an area");
    return print(localized("Settings", "%g × %g at %g, %g", "width, height, x, y").c_str(),
                 double{area.width}, double{area.height}, double{area.x}, double{area.y});
}

constexpr const char* kContents[] = {
    LOCALIZABLE("Settings", "nothing"), LOCALIZABLE("Settings", "icon"),
    LOCALIZABLE("Settings", "name"), LOCALIZABLE("Settings", "icon and name")};

constexpr const char* kOffOn[] = {LOCALIZABLE("Settings", "off"), LOCALIZABLE("Settings", "on")};

std::string onOrOff(UInt32 isOn) {
    return localized("Settings", kOffOn[isOn != 0]);
}

/// What `set` takes, for settings that are no choice among words. Numbers and the signs around them
/// are the same in each language.
constexpr struct {
    const PrefsNotation* notation;
    const char* form;
} kForms[] = {
    {&kRealNotation, "0.00"},           {&kRectangleNotation, "origin(X,Y); size(WIDTH,HEIGHT)"},
    {&kColourNotation, "#rrggbb"},      {&kHotKeyListNotation, "[ {0xKEY,0xMODIFIERS} … ]"},
    {&kSizeNotation, "(WIDTH,HEIGHT)"}, {&kActionListNotation, "[ ACTION … ]"},
};

std::string hotKeyText(const HotKey& hotKey) {
    const auto text = createKeyComboString(hotKey.modifiers, hotKey.keyCode);
    return hotKey.keyCode < 0 ? localized("Settings", "none", "keys")
           : text             ? toUTF8(text.get())
                              : "";
}

/// As in the window: the name is read as UTF-8. If it is none, it is read in its stored encoding.
std::string pointerText(const Setting& setting, const PrefsRecord& record) {
    const std::string title = ptrutilPointerTitle(record.pointerImageName);
    if (CFStringCreateWithCString(title.c_str(), kCFStringEncodingUTF8))
        return title.empty() ? localized("Pointer", "None") : title;
    const auto text = setting.notation->write(setting.in(record));
    return text ? toUTF8(text.get()) : "";
}

/// Those that `each` gives for 0 up to `count`.
template <class Each>
std::string listed(int count, Each each) {
    std::vector<std::string> items;
    for (int i = 0; i < count; ++i)
        items.push_back(each(i));
    return joined(Joint::Items, items);
}

std::string hotKeysText(const HotKey (&hotKeys)[kNumHotKeys]) {
    return listed(kNumHotKeys, [&](int i) { return hotKeyText(hotKeys[i]); });
}

std::string actionsText(const UInt8 (&actions)[kNumPaletteSlots]) {
    const std::string text = listed(kNumPaletteSlots, [&](int i) {
        return actions[i] == kEmptyAction ? "" : palutilActionName(actions[i]);
    });
    return text.empty() ? localized("Settings", "none", "buttons") : text;
}

std::string quoted(const std::string& text) {
    return filled(localized("Settings", "“%1”", "what is chosen"), {text});
}

/// A part of a setting that differs.
struct PartChange {
    std::string name, before, after;
};

std::vector<PartChange> hotKeyChanges(const PrefsRecord& before, const PrefsRecord& after) {
    std::vector<PartChange> changes;
    for (int i = 0; i < kNumHotKeys; ++i)
        if (std::memcmp(&before.hotKeys[i], &after.hotKeys[i], sizeof(HotKey)) != 0)
            changes.push_back({filled(localized("HotKeys", "%1 (hot key)", "as in Scan (hot key)"),
                                      {localized("HotKeys", kHotKeyRoles[i])}),
                               hotKeyText(before.hotKeys[i]), hotKeyText(after.hotKeys[i])});
    return changes;
}

std::vector<PartChange> actionChanges(const PrefsRecord& before, const PrefsRecord& after) {
    std::vector<PartChange> changes;
    for (int i = 0; i < kNumPaletteSlots; ++i)
        if (before.buttonActions[i] != after.buttonActions[i])
            changes.push_back({filled(localized("Settings", "Palette button %1", "its number"),
                                      {std::to_string(i + 1)}),
                               quoted(palutilActionName(before.buttonActions[i])),
                               quoted(palutilActionName(after.buttonActions[i]))});
    return changes;
}

std::vector<PartChange> contentChanges(const PrefsRecord& before, const PrefsRecord& after) {
    static constexpr struct {
        UInt32 bit;
        const char* name;
    } kParts[] = {{kButtonContentIcon, LOCALIZABLE("Settings", "Show the icon")},
                  {kButtonContentName, LOCALIZABLE("Settings", "Show the name")}};

    std::vector<PartChange> changes;
    for (const auto& [bit, name] : kParts)
        if ((before.buttonContent ^ after.buttonContent) & bit)
            changes.push_back({localized("Settings", name), onOrOff(before.buttonContent & bit),
                               onOrOff(after.buttonContent & bit)});
    return changes;
}

/// The parts of a setting that differ, if its parts have names. There are none if many buttons of
/// the palette differ: their list is told as a whole then.
std::vector<PartChange> partChanges(const Setting& setting, const PrefsRecord& before,
                                    const PrefsRecord& after) {
    if (setting.notation == &kHotKeyListNotation)
        return hotKeyChanges(before, after);
    if (setting.offset == offsetof(PrefsRecord, buttonContent))
        return contentChanges(before, after);
    if (setting.notation != &kActionListNotation)
        return {};
    auto changes = actionChanges(before, after);
    return changes.size() > kMostButtonsNamed ? std::vector<PartChange>() : changes;
}

/// Whether the value may have several words. A sentence puts it in quotation marks then.
bool isTitle(const Setting& setting) {
    return !setting.choices.empty() || setting.notation == &kTextNotation ||
           setting.notation == &kActionListNotation;
}

/// "12.5" of "12.5 sec" if the value after it has the same unit, so that it is said once.
std::string withoutUnit(std::string before, const std::string& after) {
    const auto unit = after.rfind(' ');
    if (!after.empty() && std::isdigit(static_cast<unsigned char>(after[0])) &&
        unit != std::string::npos && before.ends_with(after.substr(unit)))
        before.erase(before.size() - (after.size() - unit));
    return before;
}

} // namespace

double settingNumber(const Setting& setting, const PrefsRecord& record) {
    if (setting.notation == &kRealNotation)
        return get<double>(setting, record);
    if (setting.notation == &kDecimalNotation)
        return get<SInt32>(setting, record);
    return setting.notation == &kHexWordNotation ? get<UInt32>(setting, record) : 0;
}

void setSettingNumber(const Setting& setting, double value, PrefsRecord& record) {
    const auto whole = static_cast<SInt32>(std::lround(value));
    if (setting.notation == &kRealNotation)
        std::memcpy(setting.in(record), &value, sizeof value);
    else
        std::memcpy(setting.in(record), &whole, sizeof whole);
}

std::string settingText(const Setting& setting, const PrefsRecord& record) {
    if (setting.isNumber())
        return numberWords(setting.limits.format, settingNumber(setting, record));
    if (!setting.choices.empty())
        return choiceText(setting, record);
    if (setting.notation == &kFlagNotation)
        return onOrOff(get<UInt8>(setting, record));
    if (setting.notation == &kRectangleNotation)
        return areaText(record.scanArea);
    if (setting.notation == &kColourNotation)
        return lineColorText(record.lineColor);
    if (setting.notation == &kSizeNotation)
        return print(localized("Settings", "%d × %d points").c_str(), record.buttonSize.width,
                     record.buttonSize.height);
    if (setting.notation == &kHotKeyListNotation)
        return hotKeysText(record.hotKeys);
    if (setting.notation == &kActionListNotation)
        return actionsText(record.buttonActions);
    if (setting.notation == &kHexWordNotation)
        return localized("Settings", kContents[record.buttonContent & 3]);
    if (setting.notation == &kRealNotation)
        return print("%g", settingNumber(setting, record));
    return pointerText(setting, record);
}

std::string settingValue(const Setting& setting, const PrefsRecord& record) {
    const SettingWords words = wordsOf(setting);
    if (const UInt32 word = wordIn(setting, record); word < words.words.size())
        return words.words[word];
    if (setting.notation == &kRealNotation || setting.isNumber()) {
        char text[32];
        return {text, std::to_chars(text, std::end(text), settingNumber(setting, record)).ptr};
    }
    const auto& [red, green, blue] = record.lineColor;
    if (setting.notation == &kColourNotation && std::max({red, green, blue}) <= 255)
        return lineColorCode(record.lineColor);
    const auto stored = setting.notation->write(setting.in(record));
    return stored ? toUTF8(stored.get()) : "";
}

SettingWords wordsOf(const Setting& setting) {
    if (!setting.choices.empty())
        return {setting.choices, "Choices"};
    if (setting.notation == &kFlagNotation)
        return {kOffOn, "Settings"};
    if (setting.offset == offsetof(PrefsRecord, buttonContent))
        return {kContents, "Settings"};
    return {};
}

UInt32 wordIn(const Setting& setting, const PrefsRecord& record) {
    UInt32 word = 0;
    std::memcpy(&word, setting.in(record), std::min(setting.size, sizeof word));
    return word; // little-endian, like the record
}

std::string takenText(const Setting& setting) {
    std::string text;
    const auto [words, table] = wordsOf(setting);
    for (const char* word : words)
        text += (text.empty() ? "" : " | ") + localized(table, word);
    const auto* form =
        std::ranges::find(kForms, setting.notation, [](const auto& each) { return each.notation; });
    if (!setting.isNumber() && form != std::end(kForms))
        text = form->form;
    if (setting.limits.maximum > 0)
        text += (text.empty() ? "" : ", ") + rangeText(setting.limits);
    return text;
}

std::string changeText(const Setting& setting, const PrefsRecord& before, const PrefsRecord& after,
                       const char* pattern) {
    const std::string sentence = localized("Changes", pattern);
    if (const auto parts = partChanges(setting, before, after); !parts.empty()) {
        std::vector<std::string> texts;
        for (const auto& [name, old, now] : parts)
            texts.push_back(filled(sentence, {name, old, now}));
        return joined(Joint::Clauses, texts);
    }
    const std::string old = settingText(setting, before);
    const std::string now = settingText(setting, after);
    const std::string name = localized("Settings", setting.name);
    if (old == now)
        return name;
    if (isTitle(setting))
        return filled(sentence, {name, quoted(old), quoted(now)});
    return filled(sentence, {name, setting.limits.maximum > 0 ? withoutUnit(old, now) : old, now});
}

std::string changesText(const SettingSet& settings, const PrefsRecord& before,
                        const PrefsRecord& after, const char* pattern) {
    const std::string text = changeText(kSettings[firstOf(settings)], before, after, pattern);
    const int others = static_cast<int>(settings.count()) - 1;
    if (others == 0)
        return text;
    return filled(others == 1 ? localized("Changes", "%1, and 1 more setting")
                              : localized("Changes", "%1, and %n more settings", "", others),
                  {text});
}

std::string changeLines(const SettingSet& settings, const PrefsRecord& before,
                        const PrefsRecord& after) {
    std::string lines;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            lines += "\n" + changeText(kSettings[i], before, after, kSettingBecomes);
    return lines;
}

std::string putBackText(const Setting& setting, const PrefsRecord& now, const PrefsRecord& after) {
    if (settingText(setting, now) == settingText(setting, after))
        return filled(localized("Changes", "Reset “%1” to its default"),
                      {localized("Settings", setting.name)});
    return changeText(setting, now, after, LOCALIZABLE("Changes", "Reset “%1” to %3"));
}

std::string rangeText(const SettingLimits& limits) {
    return *limits.unit ? filled(localized("Units", "%1 to %2 %3", "as in 1 to 60 seconds"),
                                 {print("%g", limits.minimum), print("%g", limits.maximum),
                                  localized("Units", limits.unit)})
                        : filled(localized("Units", "%1 to %2", "as in 0 to 100"),
                                 {print("%g", limits.minimum), print("%g", limits.maximum)});
}
