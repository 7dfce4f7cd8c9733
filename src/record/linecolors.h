// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/Localization.h"
#include "src/record/PrefsRecord.h"

#include <string>

struct NamedColor {
    const char* name; ///< of the table "Colour"
    LineColor color;
};

/// Twelve colours of strongest contrast with one another, from Kenneth Kelly's list of 1965.
inline constexpr NamedColor kLineColors[] = {
    {LOCALIZABLE("Colour", "White"), {255, 255, 255}},
    {LOCALIZABLE("Colour", "Black"), {0, 0, 0}},
    {LOCALIZABLE("Colour", "Yellow"), {255, 179, 0}},
    {LOCALIZABLE("Colour", "Purple"), {128, 62, 117}},
    {LOCALIZABLE("Colour", "Orange"), {255, 104, 0}},
    {LOCALIZABLE("Colour", "Light blue"), {166, 189, 215}},
    {LOCALIZABLE("Colour", "Red"), {193, 0, 32}},
    {LOCALIZABLE("Colour", "Buff"), {206, 162, 98}},
    {LOCALIZABLE("Colour", "Grey"), {129, 112, 102}},
    {LOCALIZABLE("Colour", "Green"), {0, 125, 52}},
    {LOCALIZABLE("Colour", "Pink"), {246, 118, 142}},
    {LOCALIZABLE("Colour", "Blue"), {0, 83, 138}},
};

/// The colour in words, in UTF-8: its name, or the nearest name and the colour's code, such as "Red
/// (#640000)".
std::string lineColorText(const LineColor& color);

/// As in "#640000".
std::string lineColorCode(const LineColor& color);
