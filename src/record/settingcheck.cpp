// SPDX-License-Identifier: MIT
#include "src/record/settingcheck.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/record/palactions.h"
#include "src/record/settingwords.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <strings.h>

namespace {

std::string rangeWords(const SettingLimits& limits) {
    return filled(localized("Faults", "outside %1"), {rangeText(limits)});
}

std::string choiceWords(const Setting& setting) {
    std::vector<std::string> words;
    for (std::size_t i = 0; i < setting.choices.size(); ++i)
        words.push_back(
            joined(Joint::Note, {std::to_string(i), localized("Choices", setting.choices[i])}));
    return filled(localized("Faults", "none of: %1"), {joined(Joint::Items, words)});
}

bool isWithin(const SettingLimits& limits, double value) {
    return value >= limits.minimum && value <= limits.maximum; // false if it is no number
}

/// A list's text for a comparison: without blanks, in small letters.
std::string bare(const CFString* text) {
    std::string result = text ? toUTF8(text) : "";
    std::erase(result, ' ');
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
}

/// "12.5", perhaps followed by the unit, its beginning, or %.
std::optional<double> numberFrom(std::string words, const std::string& unit) {
    double value;
    std::ranges::replace(words, ',', '.');
    const char* const last = words.data() + words.size();
    const auto [end, error] = std::from_chars(words.data(), last, value);
    if (error != std::errc())
        return std::nullopt;
    std::string_view rest(end, static_cast<std::size_t>(last - end));
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const bool isUnit = rest.empty() || (rest == "%" && unit == "percent") ||
                        (rest == "ms" && unit == "milliseconds") || unit.starts_with(rest) ||
                        localized("Units", unit.c_str()).starts_with(rest);
    return isUnit ? std::optional(value) : std::nullopt;
}

/// The fault with an example of a right value, the present one.
std::string withExample(const Setting& setting, const PrefsRecord& record,
                        const std::string& fault) {
    if (setting.notation == &kFlagNotation)
        return localized("Faults", "neither on nor off");
    return filled(localized("Faults", "%1; for example %2"),
                  {fault, settingValue(setting, record)});
}

/// One of the setting's words, or its number.
std::optional<UInt32> choiceFrom(const Setting& setting, const std::string& text) {
    const auto [words, table] = wordsOf(setting);
    for (std::size_t i = 0; i < words.size(); ++i)
        if (text == std::to_string(i) || strcasecmp(text.c_str(), words[i]) == 0 ||
            text == localized(table, words[i]))
            return static_cast<UInt32>(i);
    return std::nullopt;
}

/// Sets a number. Returns the fault.
std::string setNumber(const Setting& setting, const std::string& words, PrefsRecord& record) {
    const auto value = numberFrom(words, setting.limits.unit);
    if (!value)
        return *setting.limits.unit ? filled(localized("Faults", "not a number in %1"),
                                             {localized("Units", setting.limits.unit)})
                                    : localized("Faults", "not a number");
    if (!isWithin(setting.limits, *value))
        return rangeWords(setting.limits);
    if (setting.notation != &kRealNotation && *value != std::round(*value))
        return localized("Faults", "not a whole number");
    setSettingNumber(setting, *value, record);
    return {};
}

/// "#640000" in the stored form. Any other text stays as it is.
std::string storedColour(const std::string& words) {
    if (words.size() != 7 || words[0] != '#' ||
        words.find_first_not_of("0123456789abcdefABCDEF", 1) != words.npos)
        return words;
    return "[0x" + words.substr(1, 2) + ",0x" + words.substr(3, 2) + ",0x" + words.substr(5) + "]";
}

} // namespace

std::string settingFault(const Setting& setting, const PrefsRecord& record) {
    if (setting.isNumber() && !isWithin(setting.limits, settingNumber(setting, record)))
        return rangeWords(setting.limits);
    if (!setting.choices.empty() && wordIn(setting, record) >= setting.choices.size())
        return choiceWords(setting);
    if (setting.notation == &kRealNotation && !std::isfinite(settingNumber(setting, record)))
        return localized("Faults", "not a number");
    const auto& [x, y, width, height] = record.scanArea;
    if (setting.notation == &kRectangleNotation && !std::isfinite(x + y + width + height))
        return localized("Faults", "not a value of this setting");
    if (setting.offset == offsetof(PrefsRecord, useScanArea) && record.useScanArea &&
        !isUsable(record.scanArea))
        return localized("Faults", "there is no area of your own yet");
    if (setting.offset == offsetof(PrefsRecord, buttonContent) &&
        record.buttonContent > (kButtonContentIcon | kButtonContentName))
        return filled(localized("Faults", "outside %1"), {rangeText({.maximum = 3})});
    if (setting.notation == &kSizeNotation && !(isWithin(setting.limits, record.buttonSize.width) &&
                                                isWithin(setting.limits, record.buttonSize.height)))
        return rangeWords(setting.limits);
    const auto& [red, green, blue] = record.lineColor;
    if (setting.notation == &kColourNotation && std::max({red, green, blue}) > 255)
        return filled(localized("Faults", "outside %1"), {rangeText({.maximum = 255})});
    const auto& actions = record.buttonActions;
    if (setting.notation == &kActionListNotation &&
        std::ranges::any_of(actions, [](UInt8 action) { return action >= kNumActions; }))
        return localized("Faults", "an action that there isn't");
    return {};
}

// Stored lists are read as far as possible. A list from outside must not lose anything that way:
// its length and its numbers must fit.
std::string setFromValue(const Setting& setting, const CFType* value, PrefsRecord& record) {
    PrefsRecord changed = record;
    if (!setting.notation->read(value, setting.in(changed)) ||
        (setting.isList() && bare(dynamicCFCast<CFString>(value)) !=
                                 bare(setting.notation->write(setting.in(changed)).get())))
        return localized("Faults", "not a value of this setting");
    std::string fault = settingFault(setting, changed);
    if (fault.empty())
        record = changed;
    return fault;
}

std::string setFromWords(const Setting& setting, const std::string& words, PrefsRecord& record) {
    PrefsRecord changed = record;
    if (setting.isNumber()) {
        if (std::string fault = setNumber(setting, words, changed); !fault.empty())
            return fault;
    } else if (const auto choice = choiceFrom(setting, words)) {
        std::memcpy(setting.in(changed), &*choice, setting.size);
    } else if (!setting.choices.empty()) {
        return choiceWords(setting);
    } else {
        const std::string text = setting.notation == &kColourNotation ? storedColour(words) : words;
        const std::string fault = setFromValue(setting, createFromUTF8(text).get(), record);
        return fault.empty() ? "" : withExample(setting, record, fault);
    }
    if (std::string fault = settingFault(setting, changed); !fault.empty())
        return fault;
    record = changed;
    return {};
}
