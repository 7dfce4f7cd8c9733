// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

/// The look that the desktop wishes for programs.
struct DesktopLook {
    enum class Scheme { Any, Dark, Light };

    Scheme scheme = Scheme::Any;
    bool highContrast = false;
    QColor accent; ///< invalid without a wish
    bool reducedMotion = false;
    double textScale = 1; ///< of the fonts

    bool operator==(const DesktopLook&) const = default;
};

/// The theme's palette if it fits the wishes, else one of this program. Qt 6.4 doesn't ask for
/// these wishes, and some desktops' themes don't know them.
QPalette desktopPalette(const DesktopLook& look, const QPalette& theme);
