// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "src/record/PrefsRecord.h"

#include <optional>
#include <vector>

/// A screen as the agent sees it.
struct Screen {
    Area area;
    double scale = 1; ///< pixels a point
    double panel = 0; ///< pixels that a panel at its top edge takes; 0 for none
};

/// Where the palette lies in a region.
enum class PalettePart { LeftEdge, TopLeft, BottomLeft, None };

/// What one line sweeps over, and the times of the whole way in seconds. The law of both ways is
/// Sweep's.
struct Region {
    Area area;
    double lineTime = 0;
    double pointerTime = 0;
    bool isMenu = false; ///< there is no pointer: the middle of the line's row is chosen
    double scale = 1;    ///< pixels a point
    PalettePart palette = PalettePart::LeftEdge;

    bool operator==(const Region&) const = default;
};

/// What is on the screen besides.
struct Surroundings {
    std::vector<Screen> screens;  ///< the main display first; not empty
    Place pointer;                ///< of the mouse
    std::vector<Area> menus;      ///< that are open, the innermost first
    std::optional<Area> keyboard; ///< the on-screen keyboard's window while it is typed with
};

/// The regions of a scan, in the order in which the line sweeps them. Never empty.
/// The keyboard has room for the palette above its keys, or below them, if only the palette ends
/// the typing.
/// Open menus come before all else, then the keyboard, then the record's own area if it is used and
/// on a screen (its points count from the main display), else the screens: the mouse pointer's
/// first, then the others from left to right. A region that is smaller than its screen takes less
/// time in proportion; a menu as much as its height needs at menuScanSpeedScaleFactor percent of
/// the line's speed.
std::vector<Region> regionsOf(const PrefsRecord& record, const Surroundings& surroundings);
