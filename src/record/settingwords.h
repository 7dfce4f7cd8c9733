// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include "platform/CoreFoundation/Localization.h"

#include <string>

// A setting's value in people's words and units, in UTF-8.

/// As in "12.5 sec", "on", "40 × 40 points" or "control+shift+X, …".
std::string settingText(const Setting& setting, const PrefsRecord& record);

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
