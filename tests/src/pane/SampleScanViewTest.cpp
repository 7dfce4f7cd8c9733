// SPDX-License-Identifier: MIT
#include "src/pane/look/SampleScanView.h"

#include "platform/AppKit/detail/ViewWidget.h"
#include "src/scan/palutil.h"
#include "tests/support/AgentBundle.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QTest>

#include <cmath>
#include <limits>
#include <set>

namespace {

using Limits = std::numeric_limits<SInt32>;

constexpr QRgb kGrey = qRgb(170, 170, 170);
constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QSize kSize(400, 140); // the centre is 200, 70
constexpr int kFrame = 3;        // pixels of the outer frame, at most
constexpr int kBandX = 250;      // where nothing but the band is, between the pointer and the label

/// The view alone, with an agent's bundle that only has the test's pointers.
class SampleScanViewTest : public ApplicationTest<QApplication> {
protected:
    SampleScanViewTest() { view_.attachWidget(&widget_), palutilSetup(); }

    ~SampleScanViewTest() override { palutilCleanup(); }

    QImage draw(QSize size = kSize, double scale = 1) {
        widget_.resize(size);
        QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        widget_.render(&image);
        return image;
    }

    /// The first and last row of the band in that column. 0 and -1 when there is none.
    static std::pair<int, int> bandOf(const QImage& image, int x) {
        QRect band;
        for (int y = kFrame; y < image.height() - kFrame; ++y)
            if (image.pixel(x, y) != kGrey)
                band |= QRect(x, y, 1, 1);
        return {band.top(), band.bottom()};
    }

    /// Makes and chooses a pointer with that name. It is red at its origin and green at the end of
    /// its first row.
    static void choosePointer(const std::string& name) {
        QImage image(4, 3, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        image.setPixel(0, 0, qRgb(255, 0, 0));
        image.setPixel(3, 0, qRgb(0, 255, 0));
        const auto file = AgentBundle::pointers() / (name + ".png");
        EXPECT_TRUE(image.save(QString::fromStdString(file.string())));
        std::snprintf(prefs.pointerImageName, sizeof prefs.pointerImageName, "%s", name.c_str());
    }

    AgentBundle bundle_;
    ViewWidget widget_{nullptr};
    SampleScanView view_;
};

TEST_F(SampleScanViewTest, TheBandHasTheColourTransparencyAndThicknessOfItsLine) {
    const struct {
        const char* what;
        SInt32 type;
        SInt32 thickness;
        double scanTransparency, guideTransparency;
        std::pair<int, int> rows;
        QRgb color;
    } cases[] = {
        {"the scan line's defaults", 0, 7, 5, 75, {67, 73}, qRgb(104, 8, 8)},
        {"the guide line's defaults", 1, 7, 5, 75, {67, 73}, qRgb(152, 128, 128)},
        {"thickness 50", 1, 50, 5, 0, {45, 94}, qRgb(100, 0, 0)},
        {"transparency 100", 0, 7, 100, 75, {0, -1}, 0},
        {"no number", 0, 7, std::nan(""), 75, {0, -1}, 0},
    };

    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        view_.setSampleLineType(test.type);
        prefs.lineThickness = test.thickness;
        prefs.lineTransparency = test.scanTransparency;
        prefs.lineGhostTransparency = test.guideTransparency;
        const QImage image = draw();
        EXPECT_EQ(bandOf(image, kBandX), test.rows);
        for (int y = test.rows.first; y <= test.rows.second; ++y) {
            EXPECT_NEAR(qRed(image.pixel(kBandX, y)), qRed(test.color), 1);
            EXPECT_NEAR(qGreen(image.pixel(kBandX, y)), qGreen(test.color), 1);
        }
    }
}

TEST_F(SampleScanViewTest, ItIsSharpOnScaledDisplays) {
    choosePointer("spot+1x2");
    for (const double scale : {1.25, 2.0}) {
        const QImage image = draw(kSize, scale);
        std::set<QRgb> colors;
        for (int y = 0; y < image.height(); ++y)
            colors.insert(image.pixel(static_cast<int>(kBandX * scale), y));
        EXPECT_EQ(colors.size(), 3U) << "frame, ground and band, and nothing between them";
        if (scale == 2) {
            EXPECT_EQ(bandOf(image, 2 * kBandX), std::pair(2 * 67, 2 * 74 - 1));
            EXPECT_EQ(image.pixel(2 * 199, 2 * 68), qRgb(255, 0, 0));
            EXPECT_EQ(image.pixel(2 * 202, 2 * 68), qRgb(0, 255, 0));
            EXPECT_NE(image.pixel(2 * 199, 2 * 69), kBlack) << "transparent";
        }
    }
}

TEST_F(SampleScanViewTest, SettingsWithoutMeasureAreDrawnAsFarAsTheyGo) {
    for (const SInt32 number : {Limits::max(), Limits::min(), 0, 40000}) {
        SCOPED_TRACE(number);
        prefs = PrefsRecord{};
        prefs.lineThickness = number;
        const auto [top, bottom] = bandOf(draw(), 300);
        EXPECT_EQ(bottom - top > 60, number > 1000);
        prefs.borderGap = prefs.buttonGap = number;
        prefs.buttonSize = {static_cast<SInt16>(number), 32767};
        EXPECT_EQ(draw().pixel(399, 139), kBlack) << "all of it, to the frame";
    }
}

} // namespace
