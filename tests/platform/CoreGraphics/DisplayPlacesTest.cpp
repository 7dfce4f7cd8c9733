#include "platform/CoreGraphics/DisplayPlaces.h"

#include <gtest/gtest.h>

namespace {

struct Desktop {
    const char* name;
    DisplayPlace main, other;
    QRectF mainPoints, otherPoints;
};

const Desktop kDesktops[] = {
    {"right of it",
     {{0, 0, 1920, 1080}, 1},
     {{1920, 0, 1280, 1024}, 1},
     {0, 0, 1920, 1080},
     {1920, 0, 1280, 1024}},
    {"left of it, lower",
     {{1280, 0, 1920, 1080}, 1},
     {{0, 56, 1280, 1024}, 1},
     {0, 0, 1920, 1080},
     {-1280, 56, 1280, 1024}},
    {"above it",
     {{0, 1024, 1920, 1080}, 1},
     {{320, 0, 1280, 1024}, 1},
     {0, 0, 1920, 1080},
     {320, -1024, 1280, 1024}},
    {"both doubled",
     {{3840, 0, 1920, 1080}, 2},
     {{0, 0, 1920, 1080}, 2},
     {0, 0, 1920, 1080},
     {-1920, 0, 1920, 1080}},
    {"the main one doubled",
     {{0, 0, 1920, 1080}, 2},
     {{3840, 0, 1280, 1024}, 1},
     {0, 0, 1920, 1080},
     {1920, 0, 640, 512}},
    {"the other one by a half",
     {{0, 0, 1920, 1080}, 1},
     {{1920, 0, 1280, 720}, 1.5},
     {0, 0, 1920, 1080},
     {1920, 0, 1920, 1080}},
};

TEST(DisplayPlacesTest, TheDisplaysOfADesktopTouchInPointsToo) {
    for (const Desktop& desktop : kDesktops) {
        SCOPED_TRACE(desktop.name);
        EXPECT_EQ(toPoints(desktop.main, desktop.main), desktop.mainPoints);
        EXPECT_EQ(toPoints(desktop.other, desktop.main), desktop.otherPoints);
    }
}

QRectF pixelsOf(const DisplayPlace& display) {
    return {display.geometry.topLeft(), QSizeF(display.geometry.size()) * display.scale};
}

/// As Qt does for a window that it counts to the display.
QRectF pixelsOf(const QRectF& units, const DisplayPlace& counted) {
    const QPointF start = counted.geometry.topLeft();
    return {(units.topLeft() - start) * counted.scale + start, units.size() * counted.scale};
}

TEST(DisplayPlacesTest, AWindowOverAllDisplaysCoversTheirPixelsWhicheverQtCountsItTo) {
    for (const Desktop& desktop : kDesktops) {
        SCOPED_TRACE(desktop.name);
        const QRectF points = desktop.mainPoints | desktop.otherPoints;
        const QRectF pixels = pixelsOf(desktop.main) | pixelsOf(desktop.other);
        for (const DisplayPlace& counted : {desktop.main, desktop.other})
            EXPECT_EQ(pixelsOf(toQtUnits(points, desktop.main, counted), counted), pixels);
    }
}

} // namespace
