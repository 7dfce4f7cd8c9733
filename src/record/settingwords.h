// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include "platform/CoreFoundation/Localization.h"

#include <string>

/// The topic of what the strip says of changes. The next change removes its message.
inline constexpr char kChangeTopic[] = "undo";

// A setting's value in people's words and units, in UTF-8.

/// As in "12.5 sec", "on", "40 × 40 points" or "control+shift+X, …".
std::string settingText(const Setting& setting, const PrefsRecord& record);

/// As a command prints it and setFromWords takes it back exactly, as in "12.26", "on", "#c10020" or
/// "(40,40)". It is the same in every language.
std::string settingValue(const Setting& setting, const PrefsRecord& record);

/// The values of a setting that is a choice among words, in English, from 0, and the table of their
/// translations. Empty for any other setting.
struct SettingWords {
    std::span<const char* const> words;
    const char* table = "";
};

SettingWords wordsOf(const Setting& setting);

/// The first bytes of a field, at most four, as a number: a choice, a flag or a word of bits.
UInt32 wordIn(const Setting& setting, const PrefsRecord& record);

/// What setFromWords takes: "1 to 60 seconds", "off | on" in the user's language, or a form such as
/// "(WIDTH,HEIGHT), 20 to 100 points". Empty when that is any text.
std::string takenText(const Setting& setting);

/// The number that a setting holds, in its unit; 0 for a setting that isn't a number.
double settingNumber(const Setting& setting, const PrefsRecord& record);

/// Sets a setting that holds a number, in its unit. Whole numbers are rounded. The limits aren't
/// checked.
void setSettingNumber(const Setting& setting, double value, PrefsRecord& record);

inline constexpr char kSettingBecomes[] = LOCALIZABLE("Changes", "%1: %2 to %3");
inline constexpr char kSettingBecomesAgain[] = LOCALIZABLE("Changes", "%1: %2 back to %3");

/// A change in words, as in "Volume: 70 back to 50", with one of the patterns
/// above. It names each hot key that differs, and up to two buttons of the palette. Two values with
/// the same words are left out.
std::string changeText(const Setting& setting, const PrefsRecord& before, const PrefsRecord& after,
                       const char* pattern);

/// The first of those changes, and how many others there are. There must be at least one.
std::string changesText(const SettingSet& settings, const PrefsRecord& before,
                        const PrefsRecord& after, const char* pattern);

/// All of them, each in a line of its own, which a line break precedes.
std::string changeLines(const SettingSet& settings, const PrefsRecord& before,
                        const PrefsRecord& after);

/// The effect of putting it back, as in "Reset “Volume” to 50".
std::string putBackText(const Setting& setting, const PrefsRecord& now, const PrefsRecord& after);

/// Limits in words, as in "1 to 60 seconds".
std::string rangeText(const SettingLimits& limits);
