#include "platform/IconServices/IconImages.h"
#include "platform/IconServices/Icons.h"
#include "tests/support/TestIcons.h"
#include "tests/support/TestPort.h"

#include <gmock/gmock.h>

namespace {

/// One colour a size, so that a plotted icon tells which image it was made of.
const std::map<int, QColor> kColours = {
    {16, Qt::red}, {32, Qt::green}, {64, Qt::blue}, {128, Qt::black}};

CFRef<Icon> makeIcon(const std::vector<QSize>& sizes) {
    IconImages images;
    for (const QSize& size : sizes)
        images.add(size, [size] {
            QImage image(size, QImage::Format_ARGB32_Premultiplied);
            image.fill(kColours.at(size.width()));
            return image;
        });
    return CFRef<Icon>::adopt(new Icon(std::move(images)));
}

OSStatus plot(const CGRect& rect, IconRef icon) {
    GrafPtr port;
    GetPort(&port);
    const auto context = CreateCGContextForPort(port);
    return PlotIconRefInContext(context.get(), &rect, kAlignAbsoluteCenter, kTransformNone, nullptr,
                                kPlotIconRefNormalFlags, icon);
}

TEST(IconPlottingTest, TakesTheImageForThePixelsAndCentresIt) {
    const std::vector<QSize> squares = {{16, 16}, {32, 32}, {64, 64}};

    const struct {
        const char* what;
        std::vector<QSize> sizes;
        double pixelRatio;
        CGRect rect; // in a port of 100 by 100
        int taken;
        QRect drawn; // in pixels
    } cases[] = {
        {"exact", squares, 1, CGRectMake(20, 74, 16, 16), 16, {20, 10, 16, 16}},
        {"next larger", squares, 1, CGRectMake(0, 0, 20, 20), 32, {0, 80, 20, 20}},
        {"double density", squares, 2, CGRectMake(20, 74, 16, 16), 32, {40, 20, 32, 32}},
        {"double density of the largest",
         squares,
         2,
         CGRectMake(0, 60, 40, 40),
         64,
         {0, 0, 80, 80}},
        {"one and a half", squares, 1.5, CGRectMake(20, 64, 16, 16), 32, {30, 30, 24, 24}},
        {"enlarged", {{16, 16}}, 1, CGRectMake(10, 10, 48, 48), 16, {10, 42, 48, 48}},
        {"wide rectangle", squares, 1, CGRectMake(0, 0, 60, 16), 64, {22, 84, 16, 16}},
        {"tall rectangle", squares, 1, CGRectMake(0, 0, 15, 40), 64, {0, 72, 15, 15}},
        {"wide image", {{16, 12}}, 1, CGRectMake(0, 84, 16, 16), 16, {0, 2, 16, 12}},
        {"wide image, double", {{16, 12}}, 2, CGRectMake(0, 84, 16, 16), 16, {0, 4, 32, 24}},
        {"one point", squares, 1, CGRectMake(5, 5, 1, 1), 16, {5, 94, 1, 1}},
        {"no room", squares, 1, CGRectMake(5, 5, 0, 9), 0, {}},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const auto icon = makeIcon(row.sizes);
        const QImage picture = drawInPort({100, 100}, row.pixelRatio,
                                          [&] { EXPECT_EQ(plot(row.rect, icon.get()), noErr); });
        EXPECT_EQ(drawnArea(picture), row.drawn);
        if (row.taken == 0)
            continue;
        for (const QPoint& at : {row.drawn.topLeft(), row.drawn.bottomRight(), row.drawn.center()})
            EXPECT_EQ(picture.pixelColor(at), kColours.at(row.taken));
    }
}

TEST(IconPlottingTest, ExactSizeIsExactToThePixel) {
    QImage chequered(16, 16, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            chequered.setPixelColor(x, y, QColor(x * 16, y * 16, (x + y) % 2 * 255));
    IconImages images;
    images.add({16, 16}, [&] { return chequered; });
    const auto icon = CFRef<Icon>::adopt(new Icon(std::move(images)));
    for (const auto& [ratio, points] : {std::pair{1.0, 16.f}, {2.0, 8.f}}) {
        const QImage picture = drawInPort({40, 40}, ratio, [&] {
            plot(CGRectMake(4, 40 - 4 - points, points, points), icon.get());
        });
        const int at = static_cast<int>(4 * ratio);
        EXPECT_EQ(picture.copy(at, at, 16, 16), chequered) << ratio;
    }
}

TEST(IconPlottingTest, WhatCannotBePlottedLeavesThePortAlone) {
    const auto icon = makeIcon({{16, 16}});
    const auto empty = makeIcon({});
    const CGRect rect = CGRectMake(0, 0, 16, 16);
    EXPECT_FALSE(CreateCGContextForPort(nullptr));
    const QImage picture = drawInPort({20, 20}, 1, [&] {
        const auto context = CreateCGContextForPort(GrafPort::current());
        const auto plotAs = [&](SInt16 alignment, SInt16 transform, UInt32 flags, IconRef what) {
            return PlotIconRefInContext(context.get(), &rect, alignment, transform, nullptr, flags,
                                        what);
        };
        EXPECT_EQ(plotAs(0, 0, 0, icon.get()), paramErr);
        EXPECT_EQ(plotAs(kAlignAbsoluteCenter, 1, 0, icon.get()), paramErr);
        EXPECT_EQ(plotAs(kAlignAbsoluteCenter, 0, 1, icon.get()), paramErr);
        EXPECT_EQ(plotAs(kAlignAbsoluteCenter, 0, 0, nullptr), paramErr);
        EXPECT_EQ(plotAs(kAlignAbsoluteCenter, 0, 0, empty.get()), noSuchIconErr);
    });
    EXPECT_TRUE(drawnArea(picture).isEmpty());
}

} // namespace
