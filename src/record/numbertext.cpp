// SPDX-License-Identifier: MIT
#include "src/record/numbertext.h"

#include "platform/CoreFoundation/Localization.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDigits = "0123456789";

std::string_view withoutBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

/// Formats with a word, of whole numbers, and their English form for one. All other units are
/// abbreviated.
constexpr struct {
    const char *many, *one;
} kForms[] = {
    {LOCALIZABLE_COUNT("Formats", "%.0f points"), LOCALIZABLE("Formats", "%.0f point")},
    {LOCALIZABLE_COUNT("Formats", "%3.0f points"), LOCALIZABLE("Formats", "%3.0f point")},
};

/// The format in the user's language, in the form that goes with the number.
std::string formatFor(const char* format, double number) {
    const auto* form = std::ranges::find(kForms, std::string_view(format),
                                         [](const auto& each) { return each.many; });
    if (form == std::end(kForms))
        return localized("Formats", format);
    const double whole = std::round(std::abs(number));
    return whole == 1
               ? localized("Formats", form->one)
               : localized("Formats", format, nullptr, static_cast<int>(std::min(whole, 1e9)));
}

} // namespace

std::string numberText(const char* format, double number) {
    char text[400]; // the longest double has 309 digits before the point
    std::snprintf(text, sizeof text, formatFor(format, number).c_str(), number);
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
    if (error != std::errc() || !std::isfinite(number) ||
        unit.find_first_of(kDigits) != std::string_view::npos)
        return std::nullopt;
    return number;
}
