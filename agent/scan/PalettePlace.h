// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "src/scan/palettelayout.h"

#include <cstddef>
#include <optional>

/// Where the palette lies while a region is scanned: at its left edge, in the middle of its height.
struct PalettePlace {
    /// Of a checked record. Over an open menu there is none.
    PalettePlace(const PrefsRecord& record, const Region& region);

    /// The slot that lies there. None between two buttons and beside the palette.
    std::optional<std::size_t> slotAt(Place place) const;

    PaletteLayout layout; ///< in points
    double scale;         ///< pixels a point
    Area frame;           ///< in whole pixels. Empty: there is no palette
};
