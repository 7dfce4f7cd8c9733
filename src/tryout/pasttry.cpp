// SPDX-License-Identifier: MIT
#include "src/tryout/pasttry.h"

#include <array>
#include <charconv>
#include <cmath>
#include <ctime>

namespace tryout {

namespace {

constexpr char kDateFormat[] = "%Y-%m-%d %H:%M";
constexpr std::size_t kDateLength = 16;

struct Column {
    const char* heading;
    double PastTry::*value;
};

constexpr Column kColumns[] = {
    {"sweep seconds", &PastTry::sweepTime},
    {"delay seconds", &PastTry::delay},
    {"travel mm", &PastTry::travel},
    {"target mm", &PastTry::target},
    {"speeds up", &PastTry::speedsUp},
    {"on release", &PastTry::onRelease},
    {"lateness seconds", &PastTry::lateness},
    {"spread seconds", &PastTry::spread},
    {"hits", &PastTry::hits},
    {"misses", &PastTry::misses},
};

std::string headings() {
    std::string line = "date";
    for (const Column& column : kColumns)
        line.append(",").append(column.heading);
    return line;
}

/// The shortest text that reads as the same number, in any language.
std::string textOf(double value) {
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

/// Removes the text up to the separator, and the separator, from the front. Returns the text.
std::string_view cutOff(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

std::optional<PastTry> tryOf(std::string_view line) {
    PastTry result;
    result.date = cutOff(line, ',');
    if (result.date.size() != kDateLength)
        return {};
    for (const Column& column : kColumns) {
        const std::string_view text = cutOff(line, ',');
        double& value = result.*column.value;
        const auto [end, error] = std::from_chars(text.begin(), text.end(), value);
        if (error != std::errc() || end != text.end() || !std::isfinite(value))
            return {};
    }
    return line.empty() ? std::optional(result) : std::nullopt;
}

} // namespace

std::string dateNow() {
    const std::time_t now = std::time(nullptr);
    char text[kDateLength + 1];
    std::strftime(text, sizeof text, kDateFormat, std::localtime(&now));
    return text;
}

PastTry pastTry(const Advice& advice, const Conditions& tried, const Measured& measured,
                bool onRelease) {
    const auto sweeps = static_cast<double>(measured.trials.size());
    return {.date = dateNow(),
            .sweepTime = tried.sweep.time,
            .delay = tried.delay,
            .travel = tried.sweep.travel,
            .target = tried.target,
            .speedsUp = tried.sweep.accelerates ? 1.0 : 0.0,
            .onRelease = onRelease ? 1.0 : 0.0,
            .lateness = advice.timing.lateness,
            .spread = advice.timing.spread,
            .hits = static_cast<double>(advice.hits),
            .misses = sweeps - advice.hits};
}

std::string csvOf(std::span<const PastTry> tries) {
    std::string text = headings() + "\n";
    for (const PastTry& past : tries) {
        text += past.date;
        for (const Column& column : kColumns)
            text.append(",").append(textOf(past.*column.value));
        text += "\n";
    }
    return text;
}

std::optional<std::vector<PastTry>> triesOf(std::string_view csv) {
    if (!csv.ends_with('\n') || cutOff(csv, '\n') != headings())
        return {};
    std::vector<PastTry> tries;
    while (!csv.empty()) {
        auto past = tryOf(cutOff(csv, '\n'));
        if (!past)
            return {};
        tries.push_back(std::move(*past));
    }
    return tries;
}

} // namespace tryout
