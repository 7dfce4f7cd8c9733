// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "src/scan/palettelayout.h"

#include <cstddef>
#include <optional>

/// Where the palette lies while a region is scanned: in the middle of its left edge, or where the
/// region says.
struct PalettePlace {
    /// Of a checked record.
    PalettePlace(const PrefsRecord& record, const Region& region);

    /// The slot that lies there. None between two buttons and beside the palette.
    std::optional<std::size_t> slotAt(Place place) const;

    PaletteLayout layout; ///< in points
    double scale;         ///< pixels a point
    Area frame;           ///< in whole pixels. Empty: there is no palette
};
