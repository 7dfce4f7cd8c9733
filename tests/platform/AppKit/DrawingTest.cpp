#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/QuickDraw/GrafPort.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

/// Draws into a picture as into a view of 20 by 20 points on a white ground.
class DrawingTest : public testing::Test {
protected:
    DrawingTest() { widget_.resize(20, 20); }

    template <class Draw>
    QImage draw(Draw&& commands, double scale = 1) {
        const int side = static_cast<int>(20 * scale);
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        QPainter painter(&image);
        GrafPort port(painter, widget_);
        commands();
        return image;
    }

    /// Of all that isn't white.
    static QRect extent(const QImage& image) {
        QRect found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != qRgb(255, 255, 255))
                    found |= QRect(x, y, 1, 1);
        return found;
    }

    static CFRef<CGImage> makeImage() {
        QImage image(2, 2, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        image.setPixel(0, 0, qRgb(0, 0, 255));
        return CFRef<CGImage>::adopt(new CGImage(image));
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};

protected:
    QWidget widget_;
};

TEST_F(DrawingTest, FillsReplaceOrCoverInsideTheRectangle) {
    const struct {
        NSCompositingOperation operation;
        QRgb color;
    } cases[] = {{NSCompositeCopy, qRgba(0, 0, 0, 128)},
                 {NSCompositeSourceOver, qRgb(127, 127, 127)}};

    for (const auto& [operation, color] : cases) {
        const QImage image = draw([operation = operation] {
            NSColor::colorWithDeviceRed(0, 0, 0, 0.5).set();
            NSRectFillUsingOperation({2, 3, 4, 5}, operation);
        });
        EXPECT_EQ(extent(image), QRect(2, 3, 4, 5));
        EXPECT_EQ(image.pixel(2, 3), color);
    }
    const QImage untouched = draw([] {
        NSColor::blackColor().set();
        NSRectFill({5, 5, -3, 2});
        NSRectFill({5, 5, 3, 0});
        NSRectFill({50, 5, 3, 3});
    });
    EXPECT_TRUE(extent(untouched).isNull());
}

TEST_F(DrawingTest, FramesAreEquallyWideOnAllSidesAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        SCOPED_TRACE(scale);
        const QImage image = draw(
            [] {
                NSColor::blackColor().set();
                NSFrameRect({1, 1, 18, 18});
                const Rect rect{5, 5, 15, 15};
                PenNormal();
                FrameRect(&rect);
            },
            scale);
        const auto edges = [&](QPoint at, QPoint step) {
            std::vector<int> widths; // of the runs of black and of white, in turn
            for (bool black = false; image.rect().contains(at); at += step) {
                const QRgb pixel = image.pixel(at);
                EXPECT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255));
                if ((pixel == qRgb(0, 0, 0)) != black || widths.empty()) {
                    black = pixel == qRgb(0, 0, 0);
                    widths.push_back(0);
                }
                ++widths.back();
            }
            return widths;
        };
        const int middle = image.width() / 2;
        const std::vector<int> across = edges({0, middle}, {1, 0});
        ASSERT_EQ(across.size(), 9U);
        for (const std::size_t black : {1U, 3U, 5U, 7U})
            EXPECT_EQ(across[black], std::lround(scale));
        EXPECT_EQ(edges({middle, 0}, {0, 1}), across);
    }
}

TEST_F(DrawingTest, TheClipIsSavedAndRestored) {
    const QImage image = draw([] {
        const RgnHandle before = NewRgn();
        GetClip(before);
        const Rect clip{2, 3, 6, 8}, all{0, 0, 20, 20}, beside{10, 10, 12, 12};
        GrafPort::current()->background = Qt::black;
        ClipRect(&clip);
        EraseRect(&all);
        SetClip(before);
        EraseRect(&beside);
    });
    EXPECT_EQ(extent(image), QRect(QPoint(3, 2), QPoint(11, 11)));
    EXPECT_EQ(image.pixel(9, 9), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(7, 5), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(8, 5), qRgb(255, 255, 255));
}

TEST_F(DrawingTest, ImagesStandUprightWhereYGrowsUpward) {
    for (const bool upward : {true, false})
        for (const double scale : {1.0, 2.0}) {
            SCOPED_TRACE(testing::Message() << upward << ' ' << scale);
            const QImage image = draw(
                [=] {
                    const auto context = NSGraphicsContext::currentContext()->graphicsPort();
                    CGContextSaveGState(context.get());
                    if (upward) {
                        CGContextTranslateCTM(context.get(), 0, 20);
                        CGContextScaleCTM(context.get(), 1, -1);
                    }
                    CGContextDrawImage(context.get(), CGRectMake(3, 4, 2, 2), makeImage().get());
                    CGContextRestoreGState(context.get());
                    CGContextDrawImage(context.get(), CGRectMake(3e9F, 4, 2, 2), makeImage().get());
                },
                scale);
            const int unit = static_cast<int>(scale), top = upward ? 14 : 4;
            EXPECT_EQ(extent(image), QRect(3 * unit, top * unit, 2 * unit, 2 * unit));
            const int blue = upward ? top : top + 1; // without a second flip it's upside down
            EXPECT_EQ(image.pixel(3 * unit, blue * unit), qRgb(0, 0, 255));
            EXPECT_EQ(image.pixel(5 * unit - 1, (2 * top + 1 - blue) * unit), qRgb(255, 0, 0));
        }
}

TEST_F(DrawingTest, TextsTakeTheRoomThatWasMeasured) {
    draw([this] {
        const NSStringAttributes small{NSFont::systemFontOfSize(NSFont::smallSystemFontSize())};
        const NSSize one = sizeWithAttributes(CFSTR("l"), small);
        const NSSize two = sizeWithAttributes(CFSTR("ll"), small);
        EXPECT_GT(one.width, 0);
        EXPECT_NEAR(two.width, 2 * one.width, 0.5);
        EXPECT_EQ(two.height, one.height);
        EXPECT_GT(sizeWithAttributes(CFSTR("l"), {NSFont::systemFontOfSize(0)}).height, one.height);
        const QImage text = draw([&] { drawAtPoint(CFSTR("l"), {4, 2}, small); });
        EXPECT_TRUE(QRectF(3, 2, one.width + 2, one.height).contains(extent(text)));
        EXPECT_FALSE(extent(text).isNull());
    });
}

TEST_F(DrawingTest, OutsideOfDrawingNothingIsDrawn) {
    EXPECT_EQ(NSGraphicsContext::currentContext(), nullptr);
    NSColor::blackColor().set();
    NSRectFill({0, 0, 5, 5});
    NSFrameRect({0, 0, 5, 5});
    drawAtPoint(CFSTR("l"), {}, {NSFont::systemFontOfSize(0)});
    EXPECT_EQ(sizeWithAttributes(CFSTR("l"), {NSFont::systemFontOfSize(0)}).width, 0);
    EXPECT_GT(NSFont::smallSystemFontSize(), 0);
    Rect rect{0, 30000, 1, 30001};
    ClipRect(&rect);
    EraseRect(&rect);
    PenNormal();
    FrameRect(&rect);
    OffsetRect(&rect, 32767, -1);
    EXPECT_EQ(rect, (Rect{-1, 32767, 0, 32767}));
}

} // namespace
