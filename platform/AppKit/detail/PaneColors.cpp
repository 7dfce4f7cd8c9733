// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PaneColors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr double kReadable = 8.2; // above the 7 : 1 and 3 : 1 that are asked for, since the ground
constexpr double kVisible = 3.3;  // of what is chosen is a little nearer and strokes may be thin

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

/// The first colour on the way from one to the other that stands out from every ground by `ratio`;
/// the end of the way if none does.
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

} // namespace

double contrastBetween(const QColor& a, const QColor& b) {
    const double first = luminance(a), second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

PaneColors::PaneColors(const QPalette& palette) {
    ground = palette.color(QPalette::Active, QPalette::Window);
    card = palette.color(QPalette::Active, QPalette::Base);
    const QColor given = palette.color(QPalette::Active, QPalette::WindowText);
    const bool isDark = luminance(ground) < 0.18; // where black and white stand out alike
    const QColor farthest = isDark ? Qt::white : Qt::black;
    text = standingOut(given, farthest, {ground, card}, kReadable);
    buttonFace = blend(card, text, 0.03F);
    pressed = blend(card, text, 0.15F);
    cardLine = blend(ground, text, 0.18F);
    quietText = standingOut(blend(ground, text, 0.6F), text, {ground, card, buttonFace}, kReadable);
    disabledText = standingOut(ground, text, {ground, card, buttonFace}, kVisible);
    mark = standingOut(blend(ground, text, 0.3F), text, {ground, card, buttonFace}, kVisible);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    accent = standingOut(highlight, farthest, {ground, card}, kReadable);
    onAccent = contrastBetween(accent, card) >= contrastBetween(accent, ground) ? card : ground;
    chosen = blend(card, accent, isDark ? 0.1F : 0.12F);
}
