// SPDX-License-Identifier: MIT
#include "agent/scan/Region.h"

#include <cmath>
#include <gtest/gtest.h>

static void PrintTo(const Region& region, std::ostream* out) {
    const auto& [area, lineTime, pointerTime, isMenu, scale, palette] = region;
    *out << area.left << ", " << area.top << ", " << area.width << ", " << area.height << " in "
         << lineTime << " and " << pointerTime << (isMenu ? " of a menu" : "") << " at " << scale
         << " palette " << static_cast<int>(palette);
}

namespace {

/// A desk with a panel on its left screen, and a right one at twice the pixels.
const Area kLeft{0, 0, 1000, 800}, kRight{1000, 0, 500, 400};
const std::vector<Screen> kScreens{{kLeft, 1, 40}, {kRight, 2}};
const std::vector<Region> kBoth{{kLeft, 8, 10}, {kRight, 8, 10, false, 2}};

/// What may differ: the pointer is on the left, and there is no area.
struct Desk {
    std::vector<Screen> screens = kScreens;
    Place pointer = {700, 5};
    ScanArea ownArea = {};
    std::optional<Area> keyboard = {};
    std::vector<Area> menus = {};
    bool usesArea = true, hasPanel = true, canEndKeyboard = true;
};

struct Case {
    const char* what;
    Desk desk;
    std::vector<Region> regions;
};

} // namespace

TEST(Region, IsWhatIsThereWithItsShareOfTheTimes) {
    // clang-format off
    const Screen far{{-50, 0, 50, 50}};
    const Case cases[] = {
        {"screens", {}, kBoth},
        {"the pointer's first", {.pointer = {1000, 5}}, {kBoth[1], kBoth[0]}},
        {"the main one, then from the left", {{kScreens[0], kScreens[1], far}, {-99, 0}},
         {kBoth[0], {far.area, 8, 10}, kBoth[1]}},
        {"below the panel", {.hasPanel = false}, {{{0, 40, 1000, 760}, 7.6, 10}, kBoth[1]}},
        {"no screens", {{{{5, 5, 0, 9}}}}, {{{0, 0, 1, 1}, 8, 10}}},
        {"the own area", {.ownArea = {900, 700, 300, 200}}, {{{900, 700, 100, 100}, 1, 1}}},
        {"over both screens", {.ownArea = {500, -9, 5000, 409}}, {{{500, 0, 1000, 400}, 8, 20, false, 2}}},
        {"not used", {.ownArea = {1000, 0, 500, 400}, .usesArea = false}, kBoth},
        {"in points of the main display",
         {.screens = {kScreens[1], kScreens[0]}, .ownArea = {10, 20, 30, 40}},
         {{{1020, 40, 60, 80}, 1.6, 1.2, false, 2}}},
        {"off all screens", {.ownArea = {1100, 500, 100, 100}}, kBoth},
        {"no number", {.ownArea = {NAN, 0, NAN, 100}}, kBoth},
        {"the keyboard", {.ownArea = {1000, 0, 500, 400}, .keyboard = {{0, 600, 1000, 200}}},
         {{{0, 600, 1000, 200}, 2, 10, false, 1, PalettePart::None}}},
        {"with its palette above", {.keyboard = {{0, 600, 1000, 200}}, .canEndKeyboard = false},
         {{{0, 550, 1000, 250}, 2.5, 10, false, 1, PalettePart::TopLeft}}},
        {"or below at the top of the screen", {.keyboard = {{0, 0, 1000, 200}}, .canEndKeyboard = false},
         {{{0, 0, 1000, 250}, 2.5, 10, false, 1, PalettePart::BottomLeft}}},
        {"or over a keyboard that leaves no room",
         {.keyboard = {{0, 0, 1000, 800}}, .canEndKeyboard = false},
         {{{0, 0, 1000, 800}, 8, 10, false, 1, PalettePart::TopLeft}}},
        {"menus, at half the speed",
         {.ownArea = {0, 0, 1000, 800}, .keyboard = kLeft,
          .menus = {{1100, 100, 100, 100}, {-50, 700, 100, 200}, {0, 900, 10, 10}}},
         {{{1100, 100, 100, 100}, 4, 2, true, 2, PalettePart::None},
          {{0, 700, 50, 100}, 2, .5, true, 1, PalettePart::None}}}};
    // clang-format on
    for (const auto& [what, desk, regions] : cases) {
        PrefsRecord record;
        record.lineScanTime = 8;
        record.menuScanSpeedScaleFactor = 50;
        record.useScanArea = desk.usesArea;
        record.canScanMenuBar = desk.hasPanel;
        record.lineScanCanEndKybdMode = desk.canEndKeyboard;
        record.scanArea = desk.ownArea;
        const auto& [screens, pointer, ownArea, keyboard, menus, usesArea, hasPanel, canEnd] = desk;
        EXPECT_EQ(regionsOf(record, {screens, pointer, menus, keyboard}), regions) << what;
    }
}
