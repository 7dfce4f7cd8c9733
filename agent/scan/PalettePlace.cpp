// SPDX-License-Identifier: MIT
#include "agent/scan/PalettePlace.h"

#include <algorithm>
#include <cmath>

PalettePlace::PalettePlace(const PrefsRecord& record, const Region& region) : scale(region.scale) {
    if (region.palette != PalettePart::None)
        layout = paletteLayout(record, region.area.width / scale);
    const double height = std::round(layout.height * scale);
    const double top = region.palette == PalettePart::TopLeft ? region.area.top
                       : region.palette == PalettePart::BottomLeft
                           ? region.area.bottom() - height
                           : region.area.middle().y - height / 2;
    frame = {std::round(region.area.left), std::round(top), std::round(layout.width * scale),
             height};
}

std::optional<std::size_t> PalettePlace::slotAt(Place place) const {
    const double x = (place.x - frame.left) / scale, y = (place.y - frame.top) / scale;
    const auto found = std::ranges::find_if(
        layout.buttons, [&](const PaletteBox& box) { return box.contains(x, y); });
    if (found == layout.buttons.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - layout.buttons.begin());
}
