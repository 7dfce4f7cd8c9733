// SPDX-License-Identifier: MIT
#include "platform/IconServices/Icons.h"
#include "platform/IconServices/detail/IconImages.h"
#include "platform/QuickDraw/detail/GrafPort.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>

namespace {

/// A colour for each size, which shows what image was plotted.
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

using IconPlottingTest = ApplicationTest<QApplication>;

TEST_F(IconPlottingTest, TakesTheImageForThePixelsAndCentresIt) {
    QWidget widget;
    widget.resize(100, 100);
    const std::vector<QSize> squares = {{16, 16}, {32, 32}, {64, 64}}, wide = {{16, 12}};

    const struct {
        std::vector<QSize> sizes;
        double pixelRatio;
        CGRect rect; // in a port of 100 by 100
        OSStatus result;
        int taken;   // the image's width
        QRect drawn; // in pixels; nothing else is touched
    } cases[] = {{squares, 1, CGRectMake(20, 74, 16, 16), noErr, 16, {20, 10, 16, 16}},
                 {squares, 2, CGRectMake(20, 74, 16, 16), noErr, 32, {40, 20, 32, 32}},
                 {squares, 1.5, CGRectMake(20, 64, 16, 16), noErr, 32, {30, 30, 24, 24}},
                 {squares, 2, CGRectMake(0, 60, 40, 40), noErr, 64, {0, 0, 80, 80}},
                 {squares, 1, CGRectMake(0, 0, 15, 40), noErr, 64, {0, 72, 15, 15}},
                 {wide, 2, CGRectMake(0, 84, 16, 16), noErr, 16, {0, 4, 32, 24}},
                 {squares, 2, CGRectMake(5, 5, 0, 9), noErr, 16, {}},
                 {{}, 1, CGRectMake(0, 0, 16, 16), noSuchIconErr, 16, {}}};

    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        const auto icon = makeIcon(row.sizes);
        QImage picture((QSizeF(100, 100) * row.pixelRatio).toSize(), QImage::Format_RGB32);
        picture.setDevicePixelRatio(row.pixelRatio);
        picture.fill(Qt::white);
        QImage expected = picture;
        expected.setDevicePixelRatio(1);
        QPainter(&expected).fillRect(row.drawn, kColours.at(row.taken));
        {
            QPainter painter(&picture);
            const GrafPort port(painter, widget);
            const auto context = CreateCGContextForPort(GrafPort::current());
            EXPECT_EQ(PlotIconRefInContext(context.get(), &row.rect, kAlignAbsoluteCenter, 0,
                                           nullptr, 0, icon.get()),
                      row.result);
        }
        EXPECT_EQ(picture, expected);
    }
    EXPECT_FALSE(CreateCGContextForPort(nullptr));
}

} // namespace
