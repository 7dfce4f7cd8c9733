// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The number in a printf format with one double conversion, in the user's language.
std::string numberText(const char* format, double number);

/// The same without leading blanks.
std::string numberWords(const char* format, double number);

/// The number at the beginning of a text; a comma counts as a point. A unit without digits may
/// follow. None for any other text.
std::optional<double> numberFromText(std::string_view text);
