// SPDX-License-Identifier: MIT
#include "src/prefpane/numbertext.h"

#include "platform/CoreFoundation/Localization.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDigits = "0123456789";

std::string_view withoutBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

} // namespace

std::string numberText(const char* format, double number) {
    char text[400]; // the longest double has 309 digits before the point
    std::snprintf(text, sizeof text, localized("Formats", format).c_str(), number);
    return localizedNumbers(text);
}

std::string numberWords(const char* format, double number) {
    const std::string text = numberText(format, number);
    return std::string(withoutBlanks(text));
}

std::optional<double> numberFromText(std::string_view text) {
    std::string plain(withoutBlanks(text));
    std::replace(plain.begin(), plain.end(), ',', '.');
    double number = 0;
    const char* end = plain.data() + plain.size();
    const auto [rest, error] = std::from_chars(plain.data(), end, number, std::chars_format::fixed);
    const std::string_view unit(rest, static_cast<std::size_t>(end - rest));
    if (error != std::errc() || unit.find_first_of(kDigits) != std::string_view::npos)
        return std::nullopt;
    return number;
}
