#include "platform/IconServices/IconImages.h"
#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/GrafPort.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

/// One colour a size, so that a plotted icon tells which image it was made of.
const std::map<int, QColor> kColours = {{16, Qt::red}, {32, Qt::green}, {64, Qt::blue}};

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

/// What `draw` draws into a current port of that size, in points; white where it draws nothing.
QImage drawInPort(const QSize& size, double pixelRatio, const std::function<void()>& draw) {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    static QApplication application(argc, argv); // widgets need one
    QWidget widget;
    widget.resize(size);
    QImage picture((QSizeF(size) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const GrafPort port(painter, widget);
    draw();
    return picture;
}

/// The smallest rectangle that holds all pixels that aren't white.
QRect drawnArea(const QImage& picture) {
    QRect area;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) != Qt::white)
                area |= QRect(x, y, 1, 1);
    return area;
}

OSStatus plot(const CGRect& rect, IconRef icon, SInt16 alignment = kAlignAbsoluteCenter,
              SInt16 transform = kTransformNone, UInt32 flags = kPlotIconRefNormalFlags) {
    const auto context = CreateCGContextForPort(GrafPort::current());
    return PlotIconRefInContext(context.get(), &rect, alignment, transform, nullptr, flags, icon);
}

TEST(IconPlottingTest, TakesTheImageForThePixelsAndCentresIt) {
    const std::vector<QSize> squares = {{16, 16}, {32, 32}, {64, 64}}, wide = {{16, 12}};

    const struct {
        std::vector<QSize> sizes;
        double pixelRatio;
        CGRect rect; // in a port of 100 by 100
        int taken;
        QRect drawn; // in pixels
    } cases[] = {{squares, 1, CGRectMake(20, 74, 16, 16), 16, {20, 10, 16, 16}},
                 {squares, 2, CGRectMake(20, 74, 16, 16), 32, {40, 20, 32, 32}},
                 {squares, 1.5, CGRectMake(20, 64, 16, 16), 32, {30, 30, 24, 24}},
                 {squares, 2, CGRectMake(0, 60, 40, 40), 64, {0, 0, 80, 80}},
                 {squares, 1, CGRectMake(0, 0, 15, 40), 64, {0, 72, 15, 15}},
                 {wide, 1, CGRectMake(0, 84, 16, 16), 16, {0, 2, 16, 12}},
                 {wide, 2, CGRectMake(0, 84, 16, 16), 16, {0, 4, 32, 24}}};

    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        const auto icon = makeIcon(row.sizes);
        const QImage picture = drawInPort({100, 100}, row.pixelRatio,
                                          [&] { EXPECT_EQ(plot(row.rect, icon.get()), noErr); });
        EXPECT_EQ(drawnArea(picture), row.drawn);
        for (const QPoint& at : {row.drawn.topLeft(), row.drawn.bottomRight(), row.drawn.center()})
            EXPECT_EQ(picture.pixelColor(at), kColours.at(row.taken));
    }
}

TEST(IconPlottingTest, WhatCannotBePlottedLeavesThePortAlone) {
    const auto icon = makeIcon({{16, 16}}), empty = makeIcon({});
    const CGRect rect = CGRectMake(0, 0, 16, 16);
    EXPECT_FALSE(CreateCGContextForPort(nullptr));
    const QImage picture = drawInPort({20, 20}, 1, [&] {
        EXPECT_EQ(plot(rect, icon.get(), 0), paramErr);
        EXPECT_EQ(plot(rect, icon.get(), kAlignAbsoluteCenter, 1), paramErr);
        EXPECT_EQ(plot(rect, icon.get(), kAlignAbsoluteCenter, 0, 1), paramErr);
        EXPECT_EQ(plot(rect, nullptr), paramErr);
        EXPECT_EQ(plot(rect, empty.get()), noSuchIconErr);
        EXPECT_EQ(plot(CGRectMake(5, 5, 0, 9), icon.get()), noErr);
    });
    EXPECT_TRUE(drawnArea(picture).isEmpty());
}

} // namespace
