// SPDX-License-Identifier: MIT
#include "agent/scan/PalettePlace.h"

#include <gtest/gtest.h>

#include <algorithm>

static void PrintTo(const Area& area, std::ostream* out) {
    *out << area.left << ", " << area.top << ", " << area.width << ", " << area.height;
}

namespace {

constexpr auto kNone = std::optional<std::size_t>();

PrefsRecord withButtons(std::initializer_list<UInt8> actions, SInt16 side = 40) {
    PrefsRecord record;
    std::fill_n(record.buttonActions, kNumPaletteSlots, UInt8{0});
    std::ranges::copy(actions, record.buttonActions);
    record.buttonSize = {side, side};
    return record;
}

} // namespace

TEST(PalettePlace, IsAtTheLeftEdgeInRowsOfHalfTheRegionAtMost) {
    const PrefsRecord usual;
    const auto nine = withButtons({1, 2, 3, 4, 5, 6, 7, 8, 9}, 100);
    PrefsRecord wide = withButtons({20, 0, 21}); // a gap of an empty slot
    const Region dense{{1000, -200, 800, 600}, 1, 1, false, 2};
    const Region keyboard{{0, 500, 1000, 200}, 1, 1, false, 1, PalettePart::TopLeft};
    const Region menu{{0, 0, 1000, 700}, 1, 1, true, 1, PalettePart::None};
    wide.buttonGap = 100, wide.borderGap = 0, wide.buttonSize = {20, 60};

    const struct {
        const char* what;
        PrefsRecord record;
        Region region;
        Area frame;
    } cases[] = {
        {"a row", usual, {{0, 0, 1000, 700}}, {0, 325, 246, 50}},
        {"up to the last action", wide, {{0, 0, 2000, 700}}, {0, 339, 582, 22}},
        {"three rows of three", nine, {{100, 200, 800, 600}}, {100, 339, 334, 322}},
        {"two rows", nine, {{0, 0, 1920, 1080}}, {0, 432, 546, 216}},
        {"a column", nine, {{0, 0, 240, 1000}}, {0, 21, 122, 958}},
        {"at twice the pixels", usual, dense, {1000, 4, 308, 192}},
        {"half the points", usual, {{0, 0, 1000, 700}, 1, 1, false, 2}, {0, 300, 492, 100}},
        {"above the keys", usual, keyboard, {0, 500, 246, 50}},
        {"over a menu", usual, menu, {0, 350, 0, 0}},
        {"no buttons", withButtons({}), {{0, 0, 1000, 700}}, {0, 350, 0, 0}},
    };

    for (const auto& [what, record, region, frame] : cases)
        EXPECT_EQ(PalettePlace(record, region).frame, frame) << what;
}

TEST(PalettePlace, KnowsWhichSlotLiesAtAPlace) {
    const Region screen{{0, 0, 1000, 700}}, dense{{1000, 0, 2000, 1400}, 1, 1, false, 2};

    const struct {
        Region region;
        Place place;
        std::optional<std::size_t> slot;
    } cases[] = {
        {screen, {10.9, 350}, kNone}, {screen, {11, 330}, 0},     {screen, {50.9, 369.9}, 0},
        {screen, {51, 350}, kNone},   {screen, {57, 350}, 1},     {screen, {230, 350}, 4},
        {screen, {30, 329.9}, kNone}, {screen, {30, 370}, kNone}, {screen, {246, 350}, kNone},
        {dense, {1022, 700}, 0},      {dense, {1101.9, 700}, 0},  {dense, {1102, 700}, kNone},
    };

    for (const auto& [region, place, slot] : cases)
        EXPECT_EQ(PalettePlace(PrefsRecord(), region).slotAt(place), slot)
            << place.x << ", " << place.y;
    const PalettePlace rows(withButtons({1, 2, 3, 4, 5, 6, 7}, 100), {{0, 0, 800, 600}});
    EXPECT_EQ(rows.slotAt({150, 300}), 4U) << "the second of the second row";
    EXPECT_EQ(rows.slotAt({150, 400}), kNone) << "the last row isn't full";
}
