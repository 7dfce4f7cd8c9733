// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PaneColors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr double kReadable = 8.2; // above the 7 : 1 and 3 : 1 that are asked for, since the ground
constexpr double kVisible = 3.3;  // of what is chosen is a little nearer and strokes may be thin
constexpr double kHighContrast = 20; // between ground and text, where the user wishes for the most

double luminance(const QColor& color) {
    const auto linear = [](float part) {
        const double value = static_cast<double>(part);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor blend(const QColor& from, const QColor& to, float share) {
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

/// The first colour on the way from one to the other whose contrast to every ground is at least
/// `ratio`. The end of the way if there is none.
QColor standingOut(const QColor& from, const QColor& to, std::initializer_list<QColor> grounds,
                   double ratio) {
    constexpr int kSteps = 50;
    for (int step = 0; step < kSteps; ++step) {
        const QColor color = blend(from, to, static_cast<float>(step) / kSteps);
        if (std::all_of(grounds.begin(), grounds.end(), [&](const QColor& ground) {
                return contrastBetween(color, ground) >= ratio;
            }))
            return color;
    }
    return to;
}

/// What a palette is asked for.
struct Given {
    QColor ground, card, text, highlight;

    bool operator==(const Given&) const = default;
};

PaneColors derive(const Given& given) {
    PaneColors its;
    const auto& [ground, card, givenText, highlight] = given;
    its.ground = ground;
    its.card = card;
    const bool isDark = luminance(ground) < 0.18; // where black and white stand out alike
    const QColor farthest = isDark ? Qt::white : Qt::black;
    const QColor text = its.text = standingOut(givenText, farthest, {ground, card}, kReadable);
    its.buttonFace = blend(card, text, 0.03F);
    its.pressed = blend(card, text, 0.15F);
    const bool isHigh = contrastBetween(ground, text) >= kHighContrast;
    its.cardLine = blend(ground, text, isHigh ? 0.45F : 0.18F);
    const std::initializer_list<QColor> grounds = {ground, card, its.buttonFace};
    its.quietText = standingOut(blend(ground, text, 0.6F), text, grounds, kReadable);
    its.disabledText = standingOut(ground, text, grounds, kVisible);
    its.mark = standingOut(blend(ground, text, 0.3F), text, grounds, isHigh ? kReadable : kVisible);
    its.accent = standingOut(highlight, farthest, {ground, card}, kReadable);
    const bool cardIsFarther =
        contrastBetween(its.accent, card) >= contrastBetween(its.accent, ground);
    its.onAccent = cardIsFarther ? card : ground;
    its.chosen = blend(card, its.accent, isDark ? 0.1F : 0.12F);
    return its;
}

} // namespace

double contrastBetween(const QColor& a, const QColor& b) {
    const double first = luminance(a), second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

PaneColors::PaneColors(const QPalette& palette) {
    static Given last;
    static PaneColors derived;
    const auto color = [&](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role);
    };
    const Given given{color(QPalette::Window), color(QPalette::Base), color(QPalette::WindowText),
                      color(QPalette::Highlight)};
    if (given != last) {
        last = given;
        derived = derive(given);
    }
    *this = derived;
}
