// SPDX-License-Identifier: MIT
#include "agent/scan/Region.h"

#include "src/scan/palettelayout.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

constexpr double kSmallest = 1; ///< pixels of a side; nothing smaller is scanned

bool isUsableArea(const Area& area) {
    return area.width >= kSmallest && area.height >= kSmallest;
}

double sizeOf(const Area& area) {
    return area.width * area.height;
}

/// The screens that have a size, or a tiny one if there are none, in the order of a scan.
std::vector<Screen> orderedScreens(const Surroundings& surroundings) {
    std::vector<Screen> screens = surroundings.screens;
    std::erase_if(screens, [](const Screen& screen) { return !isUsableArea(screen.area); });
    if (screens.empty())
        return {{.area = {0, 0, kSmallest, kSmallest}}};
    const auto isFirst = [&](const Screen& screen) {
        return screen.area.contains(surroundings.pointer);
    };
    auto first = std::ranges::find_if(screens, isFirst);
    if (first == screens.end())
        first = screens.begin();
    std::iter_swap(screens.begin(), first);
    std::sort(screens.begin() + 1, screens.end(), [](const Screen& a, const Screen& b) {
        return std::tie(a.area.left, a.area.top) < std::tie(b.area.left, b.area.top);
    });
    return screens;
}

/// The part of it within the rectangle around the screens that it meets. Empty if it meets none.
Area cutToScreens(const Area& area, const std::vector<Screen>& screens) {
    Area around;
    for (const Screen& screen : screens) {
        if (!isUsableArea(intersection(area, screen.area)))
            continue;
        if (around.isEmpty())
            around = screen.area;
        const double left = std::min(around.left, screen.area.left);
        const double top = std::min(around.top, screen.area.top);
        around = {left, top, std::max(around.right(), screen.area.right()) - left,
                  std::max(around.bottom(), screen.area.bottom()) - top};
    }
    return intersection(area, around);
}

/// The screen that has the area's middle, else the one that has most of it.
const Screen& screenOf(const Area& area, const std::vector<Screen>& screens) {
    for (const Screen& screen : screens)
        if (screen.area.contains(area.middle()))
            return screen;
    return *std::ranges::max_element(
        screens, {}, [&](const Screen& screen) { return sizeOf(intersection(area, screen.area)); });
}

/// An area with its share of the times of a whole screen. `speed` is in shares of the line's.
Region regionAt(const Area& area, const PrefsRecord& record, const Screen& screen,
                double speed = 1) {
    return {.area = area,
            .lineTime = record.lineScanTime * area.height / screen.area.height / speed,
            .pointerTime = record.pointerScanTime * area.width / screen.area.width,
            .scale = screen.scale};
}

std::vector<Region> menuRegions(const PrefsRecord& record, const std::vector<Area>& menus,
                                const std::vector<Screen>& screens) {
    std::vector<Region> regions;
    for (const Area& menu : menus) {
        const Area area = cutToScreens(menu, screens);
        if (!isUsableArea(area))
            continue;
        regions.push_back(
            regionAt(area, record, screenOf(area, screens), record.menuScanSpeedScaleFactor / 100));
        regions.back().isMenu = true;
        regions.back().palette = PalettePart::None;
    }
    return regions;
}

/// The keyboard's keys. The palette hides none of them unless there is no other room.
Region keyboardRegion(Area area, const PrefsRecord& record, const Screen& screen) {
    if (record.lineScanCanEndKybdMode) {
        Region region = regionAt(area, record, screen);
        region.palette = PalettePart::None;
        return region;
    }
    const double height = paletteLayout(record, area.width / screen.scale).height * screen.scale;
    const double top = std::max(area.top - height, screen.area.top);
    const bool isBelow = area.top - height < top && area.bottom() + height <= screen.area.bottom();
    area.height += isBelow ? height : std::exchange(area.top, top) - top;
    Region region = regionAt(area, record, screen);
    region.palette = isBelow ? PalettePart::BottomLeft : PalettePart::TopLeft;
    return region;
}

/// The whole screen, or what is below its panel.
Area scannedPart(const Screen& screen, bool withPanel) {
    Area area = screen.area;
    if (withPanel || !(screen.panel > 0) || screen.panel > area.height - kSmallest)
        return area;
    area.top += screen.panel;
    area.height -= screen.panel;
    return area;
}

/// In pixels. Empty without one.
Area ownAreaOf(const PrefsRecord& record, const Screen& main) {
    const ScanArea& own = record.scanArea;
    if (!record.useScanArea || !isUsable(own))
        return {};
    return {main.area.left + own.x * main.scale, main.area.top + own.y * main.scale,
            own.width * main.scale, own.height * main.scale};
}

} // namespace

std::vector<Region> regionsOf(const PrefsRecord& record, const Surroundings& surroundings) {
    const std::vector<Screen> screens = orderedScreens(surroundings);
    std::vector<Region> regions = menuRegions(record, surroundings.menus, screens);
    if (!regions.empty())
        return regions;
    const Area keyboard = cutToScreens(surroundings.keyboard.value_or(Area{}), screens);
    if (isUsableArea(keyboard))
        return {keyboardRegion(keyboard, record, screenOf(keyboard, screens))};
    const Area own = cutToScreens(ownAreaOf(record, surroundings.screens.front()), screens);
    if (isUsableArea(own))
        return {regionAt(own, record, screenOf(own, screens))};
    for (const Screen& screen : screens)
        regions.push_back(regionAt(scannedPart(screen, record.canScanMenuBar), record, screen));
    return regions;
}
