// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/PalettePlace.h"

#include <QImage>
#include <QWidget>

#include <array>
#include <string>

/// How the palette's buttons are.
struct PaletteState {
    std::array<bool, kNumPaletteSlots> isOn = {}; ///< they look pressed
    std::optional<std::size_t> marked;            ///< the pointer is on this one

    bool operator==(const PaletteState&) const = default;
};

// Both pictures have the style, colours and fonts of the widget, which isn't shown.

/// The palette as the pane's preview has it, as large as the place's frame. Null for an empty one.
QImage palettePicture(QWidget& widget, const PrefsRecord& record, const PalettePlace& place,
                      const PaletteState& state);

/// A framed line of text, shortened to `mostWidth` pixels. `scale` is in pixels a point.
QImage textPicture(const QWidget& widget, const std::string& text, double scale, double mostWidth);
