// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <gtest/gtest.h>

namespace {

QRectF pixelsOf(const DisplayPlace& display) {
    return {display.geometry.topLeft(), QSizeF(display.geometry.size()) * display.scale};
}

/// Qt's conversion for a window on that display.
QRectF pixelsOf(const QRectF& units, const DisplayPlace& counted) {
    const QPointF start = counted.geometry.topLeft();
    return {(units.topLeft() - start) * counted.scale + start, units.size() * counted.scale};
}

TEST(DisplayPlacesTest, DisplaysTouchInPointsAndAWindowCoversThemWhicheverQtCountsItTo) {
    const QRectF mainPoints(0, 0, 1920, 1080);

    const struct {
        DisplayPlace main, other;
        QRectF otherPoints;
    } cases[] = {{{{1280, 0, 1920, 1080}, 1}, {{0, 56, 1280, 1024}, 1}, {-1280, 56, 1280, 1024}},
                 {{{0, 1024, 1920, 1080}, 1}, {{320, 0, 1280, 1024}, 1}, {320, -1024, 1280, 1024}},
                 {{{3840, 0, 1920, 1080}, 2}, {{0, 0, 1920, 1080}, 2}, {-1920, 0, 1920, 1080}},
                 {{{0, 0, 1920, 1080}, 2}, {{3840, 0, 1280, 1024}, 1}, {1920, 0, 640, 512}},
                 {{{0, 0, 1920, 1080}, 1}, {{1920, 0, 1280, 720}, 1.5}, {1920, 0, 1920, 1080}}};

    for (const auto& [main, other, otherPoints] : cases) {
        SCOPED_TRACE(testing::Message() << otherPoints.x() << ' ' << otherPoints.width());
        EXPECT_EQ(toPoints(main, main), mainPoints);
        EXPECT_EQ(toPoints(other, main), otherPoints);
        for (const DisplayPlace& counted : {main, other})
            EXPECT_EQ(pixelsOf(toQtUnits(mainPoints | otherPoints, main, counted), counted),
                      pixelsOf(main) | pixelsOf(other));
    }
}

} // namespace
