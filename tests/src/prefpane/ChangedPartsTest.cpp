#include "src/prefpane/changedparts.h"

#include <gtest/gtest.h>
#include <random>
#include <tuple>

namespace {

bool isInside(const CGRect& area, CGFloat x, CGFloat y, CGFloat reach) {
    const auto [origin, size] = CGRectInset(area, -reach, -reach);
    return x > origin.x && x < origin.x + size.width && y > origin.y && y < origin.y + size.height;
}

/// What decides a point's colour: whether it is in each area, and on its border.
auto colorOf(const ShownAreas& shown, CGFloat x, CGFloat y) {
    constexpr CGFloat kHalfBorder = 1;
    const auto part = [&](const CGRect& area) {
        return isInside(area, x, y, kHalfBorder) + isInside(area, x, y, -kHalfBorder);
    };
    const int current = CGRectIsEmpty(shown.current) ? 0 : part(shown.current);
    return std::tuple(current, current && shown.dragging, shown.dragging ? part(shown.dragged) : 0);
}

bool hold(const ChangedParts& parts, CGFloat x, CGFloat y) {
    for (std::size_t i = 0; i < parts.count(); ++i)
        if (isInside(parts.rects()[i], x, y, 0))
            return true;
    return false;
}

TEST(ChangedPartsTest, WhatLooksDifferentIsInThem) {
    constexpr int kSide = 30;
    std::mt19937 random(7);
    const auto number = [&](int from, int to) {
        return static_cast<CGFloat>(std::uniform_int_distribution(from, to)(random));
    };
    const auto area = [&] {
        return CGRectMake(number(0, kSide), number(0, kSide), number(-kSide, kSide),
                          number(-kSide, kSide));
    };
    const auto areas = [&] { return ShownAreas{area(), area(), number(0, 1) != 0}; };

    for (int round = 0; round < 500; ++round) {
        const ShownAreas before = areas();
        ShownAreas now = areas();
        if (round % 2)
            now.current = before.current; // as while a drag goes on
        const ChangedParts parts(before, now);
        for (CGFloat x = 0.5F; x < kSide; ++x)
            for (CGFloat y = 0.5F; y < kSide; ++y)
                if (colorOf(before, x, y) != colorOf(now, x, y)) {
                    ASSERT_TRUE(hold(parts, x, y)) << round << ": " << x << ", " << y;
                }
    }
}

TEST(ChangedPartsTest, ADragChangesLittleOfALargeArea) {
    const CGRect current = CGRectMake(100, 100, 3000, 2000);
    const ShownAreas before{current, CGRectMake(0, 0, 5000, 2000), true};
    const ShownAreas now{current, CGRectMake(0, 0, 5010, 2003), true};
    const ChangedParts parts(before, now);
    CGFloat points = 0;
    for (std::size_t i = 0; i < parts.count(); ++i)
        points += parts.rects()[i].size.width * parts.rects()[i].size.height;
    EXPECT_LT(points, 0.01F * 5010 * 2003);
    EXPECT_EQ(ChangedParts(now, now).count(), 0u);
}

} // namespace
