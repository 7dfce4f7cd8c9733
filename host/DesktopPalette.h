// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

/// How the desktop wishes programs to look.
struct DesktopLook {
    enum class Scheme { Any, Dark, Light };

    Scheme scheme = Scheme::Any;
    bool highContrast = false;
    QColor accent; ///< invalid without a wish
    bool reducedMotion = false;
    double textScale = 1; ///< of the fonts

    bool operator==(const DesktopLook&) const = default;
};

/// The theme's palette where it does as the desktop wishes, else one of this program's own: Qt 6.4
/// doesn't ask for these wishes, and under some desktops its theme knows nothing of them.
QPalette desktopPalette(const DesktopLook& look, const QPalette& theme);
