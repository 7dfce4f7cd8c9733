// SPDX-License-Identifier: MIT
#include "agent/scan/Snap.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const Target kButton = {{100, 100, 40, 20}}, kNeighbour = {{146, 100, 40, 20}},
             kText = {{100, 130, 200, 50}, false}, kRow = {{90, 90, 300, 34}};

TEST(SnapTest, HitsWhatWasMeantOrLeavesItsPlace) {
    const struct {
        const char* what;
        Place point;
        std::vector<Target> targets;
        std::optional<Area> hit;
    } kRows[] = {
        {"in it", {105, 105}, {kButton}, kButton.box},
        {"beside it", {93, 105}, {kButton}, kButton.box},
        {"at its corner", {91, 91}, {kButton}, kButton.box},
        {"too far", {89, 105}, {kButton}, {}},
        {"between two", {143, 105}, {kButton, kNeighbour}, {}},
        {"in one of two", {139, 105}, {kButton, kNeighbour}, kButton.box},
        {"in the smaller one", {105, 105}, {kButton, kRow}, kButton.box},
        {"in the larger one", {200, 105}, {kButton, kRow}, kRow.box},
        {"in a text near to it", {105, 132}, {kButton, kText}, {}},
        {"near to a text as well", {105, 125}, {kButton, kText}, kButton.box},
        {"nothing there", {105, 105}, {}, {}},
    };

    for (const auto& row : kRows)
        EXPECT_EQ(snap(row.point, row.targets, 10), row.hit) << row.what;
}

/// Whatever lies there: a press that is in a target never goes to another beside it.
TEST(SnapTest, ANeighbourNeverTakesAPress) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> place(0, 300), size(5, 60);
    for (int round = 0; round < 20'000; ++round) {
        std::vector<Target> targets(6);
        for (Target& target : targets)
            target.box = {place(random), place(random), size(random), size(random)};
        const Place point = {place(random), place(random)};
        const auto hit = snap(point, targets, 24);
        for (const Target& target : targets)
            if (target.box.contains(point)) {
                ASSERT_TRUE(hit);
                EXPECT_TRUE(hit->contains(point));
            }
    }
}

TEST(SnapTest, TheDistanceIsTheSpreadsWithinItsLimits) {
    const struct {
        double spread, lineTime, pointerTime, scale, pixels;
    } kRows[] = {
        {0, 10, 10, 1, 10},   {0, 10, 10, 2, 20},     {0.1, 10, 10, 1, 16}, {0.1, 5, 20, 1, 20},
        {0.01, 10, 10, 1, 4}, {0.5, 10, 10, 1.5, 36}, {0.1, 0, 10, 1, 24},
    };

    for (const auto& row : kRows)
        EXPECT_DOUBLE_EQ(snapDistance(row.spread, {.area = {0, 0, 1600, 1000},
                                                   .lineTime = row.lineTime,
                                                   .pointerTime = row.pointerTime,
                                                   .scale = row.scale}),
                         row.pixels)
            << row.spread << ' ' << row.lineTime;
}

/// As programs were seen to tell their places; the box is in the middle of each window.
TEST(SnapTest, BoxesAreWhereTheWindowIs) {
    const struct {
        const char* what;
        Area told, window, box;
        std::optional<Area> pixels;
    } kRows[] = {
        {"as it is",
         {751, 170, 500, 400},
         {751, 170, 500, 400},
         {761, 180, 44, 30},
         Area{761, 180, 44, 30}},
        {"with its frame",
         {200, 150, 502, 425},
         {201, 170, 500, 400},
         {211, 180, 50, 34},
         Area{211, 180, 50, 34}},
        {"in points",
         {601, 160, 500, 400},
         {1202, 320, 1000, 800},
         {611, 170, 44, 30},
         Area{1222, 340, 88, 60}},
        {"in points, with its frame",
         {200, 150, 501, 400},
         {400, 320, 1000, 774},
         {210, 170, 50, 34},
         Area{420, 340, 100, 68}},
        {"elsewhere",
         {0, 0, 500, 400},
         {751, 170, 500, 400},
         {10, 10, 44, 30},
         Area{761, 180, 44, 30}},
        {"another window", {0, 0, 500, 200}, {751, 170, 500, 400}, {}, {}},
        {"nothing", {0, 0, 0, 0}, {751, 170, 500, 400}, {}, {}},
    };

    for (const auto& row : kRows) {
        const auto places = ToldPlaces::of(row.told, row.window);
        EXPECT_EQ(places ? std::optional(places->inPixels(row.box)) : std::nullopt, row.pixels)
            << row.what;
    }
}

} // namespace
