// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/QuickDraw/detail/GrafPort.h"
#include "tests/platform/AppKit/TestForm.h"

#include <cmath>

namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0), kWhite = qRgb(255, 255, 255);
using DrawingTest = FormTest;

/// Draws into a picture like a view of 20 by 20 points with a white background.
template <class Draw>
QImage draw(Draw&& commands, double scale = 1) {
    QWidget widget;
    widget.resize(20, 20);
    const int side = static_cast<int>(20 * scale);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    GrafPort port(painter, widget);
    commands();
    return image;
}

TEST_F(DrawingTest, FramesAreEquallyWideOnAllSidesAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        SCOPED_TRACE(scale);
        const auto frames = [] {
            NSColor::blackColor().set();
            NSFrameRectWithWidth({1, 1, 18, 18}, 1);
            const Rect rect{5, 5, 15, 15};
            PenNormal();
            FrameRect(&rect);
        };
        const QImage image = draw(frames, scale);
        std::vector<int> widths{0}; // along the middle, of white and of black in turn
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, image.height() / 2);
            if (pixel != (widths.size() % 2 ? kWhite : kBlack))
                widths.push_back(0);
            ++widths.back();
            EXPECT_TRUE(pixel == kWhite || pixel == kBlack);
        }
        ASSERT_EQ(widths.size(), 9U);
        for (const std::size_t black : {1U, 3U, 5U, 7U})
            EXPECT_EQ(widths[black], std::lround(scale));
        EXPECT_EQ(image.mirrored().transformed(QTransform().rotate(90)), image) << "as wide across";
    }
}

} // namespace
