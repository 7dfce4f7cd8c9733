// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"

#include <array>

/// A rectangle of the palette, in points from the palette's top left.
struct PaletteBox {
    int left = 0, top = 0, width = 0, height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }

    bool contains(double x, double y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
};

/// The palette's size and its buttons' places, as the sample in the window has them: a frame of one
/// point, the border, then the buttons with a gap before the first and between two.
struct PaletteLayout {
    int width = 0, height = 0; ///< 0: there are no buttons
    /// Of each slot. Empty for those after the last action.
    std::array<PaletteBox, kNumPaletteSlots> buttons = {};
};

/// For a region `regionWidth` points wide: a row; several of equal length if one would take more
/// than half of it. The record is a checked one.
PaletteLayout paletteLayout(const PrefsRecord& record, double regionWidth);
