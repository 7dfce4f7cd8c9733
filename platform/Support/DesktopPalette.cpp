// SPDX-License-Identifier: MIT
#include "platform/Support/DesktopPalette.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace {

struct RoleColors {
    QPalette::ColorRole role;
    QRgb light, dark, plainLight, plainDark; ///< plain: highest contrast
};

constexpr RoleColors kColors[] = {
    {QPalette::Window, 0xfafafa, 0x242427, 0xffffff, 0x000000},
    {QPalette::WindowText, 0x1d1d20, 0xf2f2f3, 0x000000, 0xffffff},
    {QPalette::Base, 0xffffff, 0x38383d, 0xffffff, 0x1a1a1a},
    {QPalette::AlternateBase, 0xf2f2f3, 0x404046, 0xf0f0f0, 0x2a2a2a},
    {QPalette::Text, 0x1d1d20, 0xf2f2f3, 0x000000, 0xffffff},
    {QPalette::PlaceholderText, 0x68686e, 0xb0b0b6, 0x303030, 0xe0e0e0},
    {QPalette::Button, 0xf0f0f1, 0x3a3a3f, 0xffffff, 0x1a1a1a},
    {QPalette::ButtonText, 0x1d1d20, 0xf2f2f3, 0x000000, 0xffffff},
    {QPalette::BrightText, 0xffffff, 0xffffff, 0xffffff, 0xffffff},
    {QPalette::ToolTipBase, 0x2f2f33, 0x3a3a3f, 0xffffff, 0x000000},
    {QPalette::ToolTipText, 0xffffff, 0xf2f2f3, 0x000000, 0xffffff},
    {QPalette::Light, 0xffffff, 0x505056, 0x000000, 0xffffff},
    {QPalette::Midlight, 0xe6e6e8, 0x46464b, 0x000000, 0xffffff},
    {QPalette::Mid, 0xb8b8bd, 0x17171a, 0x000000, 0xffffff},
    {QPalette::Dark, 0x9a9aa0, 0x101012, 0x000000, 0xffffff},
    {QPalette::Shadow, 0x5c5c62, 0x000000, 0x000000, 0xffffff},
    {QPalette::Highlight, 0x1769c7, 0x1f6fd0, 0x00308f, 0xffe100},
    {QPalette::HighlightedText, 0xffffff, 0xffffff, 0xffffff, 0x000000},
    {QPalette::Link, 0x1257a6, 0x7ab4ff, 0x00308f, 0xffe100},
    {QPalette::LinkVisited, 0x6a3fa0, 0xc3a4f0, 0x5b1a8f, 0xffe100},
};

/// As WCAG 2 defines it, from 0 for black to 1 for white.
double luminance(const QColor& color) {
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

bool isDark(const QPalette& palette) {
    return luminance(palette.color(QPalette::Window)) <
           luminance(palette.color(QPalette::WindowText));
}

/// Can be read, and is told at once from what can be used.
QColor betweenGroundAndText(const QPalette& palette) {
    constexpr float kShare = 0.55F;
    const QColor ground = palette.color(QPalette::Window), text = palette.color(QPalette::Text);
    const auto part = [](float a, float b) { return a + (b - a) * kShare; };
    return QColor::fromRgbF(part(ground.redF(), text.redF()), part(ground.greenF(), text.greenF()),
                            part(ground.blueF(), text.blueF()));
}

QPalette ownPalette(bool dark, bool highContrast) {
    const auto column = highContrast ? (dark ? &RoleColors::plainDark : &RoleColors::plainLight)
                                     : (dark ? &RoleColors::dark : &RoleColors::light);
    QPalette palette;
    for (const RoleColors& colors : kColors)
        palette.setColor(colors.role, QColor::fromRgb(colors.*column));
    const QColor disabled = betweenGroundAndText(palette);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

/// Selections get the accent. So do links, if it is readable on the window.
void applyAccent(QPalette& palette, const QColor& accent) {
    constexpr double kReadable = 4.5;
    const bool takesWhite = contrast(accent, Qt::white) >= contrast(accent, Qt::black);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, takesWhite ? Qt::white : Qt::black);
    if (contrast(accent, palette.color(QPalette::Window)) >= kReadable)
        palette.setColor(QPalette::Link, accent);
}

} // namespace

QPalette desktopPalette(const DesktopLook& look, const QPalette& theme) {
    using Scheme = DesktopLook::Scheme;
    const bool dark = look.scheme == Scheme::Any ? isDark(theme) : look.scheme == Scheme::Dark;
    const bool themeWillDo = !look.highContrast && dark == isDark(theme);
    QPalette palette = themeWillDo ? theme : ownPalette(dark, look.highContrast);
    if (look.accent.isValid() && !look.highContrast)
        applyAccent(palette, look.accent);
    return palette;
}
