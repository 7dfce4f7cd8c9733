// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The number as the format, printf's with one double conversion, writes it in the user's language.
std::string numberText(const char* format, double number);

/// The same without blanks before it.
std::string numberWords(const char* format, double number);

/// The number that a text begins with; a comma counts as a point. Behind it may stand a unit: no
/// further digit. Nothing when it isn't so.
std::optional<double> numberFromText(std::string_view text);
