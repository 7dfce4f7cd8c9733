#include "src/prefpane/SampleScanView.h"

#include "platform/AppKit/ViewWidget.h"
#include "src/prefpane/palutil.h"
#include "tests/support/AgentBundle.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace {

constexpr QRgb kGrey = qRgb(170, 170, 170);
constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QSize kSize(400, 140); // the centre is 200, 70
constexpr int kFrame = 3;        // pixels of the outer frame, at most
constexpr int kBandX = 250;      // where nothing but the band is, between the pointer and the label

/// The view on its own, with an agent's bundle that has nothing but the pointers of the test.
class SampleScanViewTest : public testing::Test {
protected:
    SampleScanViewTest() {
        view_.attachWidget(&widget_);
        palutilSetup();
    }

    ~SampleScanViewTest() override { palutilCleanup(); }

    QImage draw(QSize size = kSize, double scale = 1) {
        widget_.resize(size);
        QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        widget_.render(&image);
        return image;
    }

    /// The first and last row of the band, at that column; -1 each when there is none.
    static std::pair<int, int> bandOf(const QImage& image, int x) {
        std::pair rows(-1, -1);
        for (int y = kFrame; y < image.height() - kFrame; ++y) {
            if (image.pixel(x, y) == kGrey)
                continue;
            rows = {rows.first < 0 ? y : rows.first, y};
        }
        return rows;
    }

    /// Where there is something as dark as text.
    static QRect darkIn(const QImage& image, const QRect& area) {
        QRect found;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (qGray(image.pixel(x, y)) < 80)
                    found |= QRect(x, y, 1, 1);
        return found;
    }

    /// A pointer of four colours, 4 by 3, under that name; chosen in the settings.
    static void choosePointer(const std::string& name) {
        QImage image(4, 3, QImage::Format_ARGB32);
        image.fill(qRgb(0, 0, 255));
        image.setPixel(0, 0, qRgb(255, 0, 0));
        image.setPixel(3, 0, qRgb(0, 255, 0));
        image.setPixel(0, 2, qRgb(255, 255, 0));
        image.setPixel(3, 2, qRgba(0, 0, 0, 0));
        const auto file = AgentBundle::pointers() / (name + ".png");
        EXPECT_TRUE(image.save(QString::fromStdString(file.string())));
        std::snprintf(prefs.pointerImageName, sizeof prefs.pointerImageName, "%s", name.c_str());
    }

    static void expectPointerAt(const QImage& image, int x, int y, int scale = 1) {
        const int right = x + 3 * scale, bottom = y + 2 * scale;
        EXPECT_EQ(image.pixel(x, y), qRgb(255, 0, 0));
        EXPECT_EQ(image.pixel(right, y), qRgb(0, 255, 0));
        EXPECT_EQ(image.pixel(x, bottom), qRgb(255, 255, 0));
        EXPECT_EQ(image.pixel(x + scale, y + scale), qRgb(0, 0, 255));
        EXPECT_NE(image.pixel(right, bottom), qRgb(0, 0, 255)) << "transparent";
        EXPECT_NE(image.pixel(x - 1, y), qRgb(255, 0, 0));
        EXPECT_NE(image.pixel(x, y - 1), qRgb(255, 0, 0));
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    AgentBundle bundle_;

protected:
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
        {"any other type is the guide line", -4, 7, 5, 75, {67, 73}, qRgb(152, 128, 128)},
        {"thickness 1", 0, 1, 0, 75, {70, 70}, qRgb(100, 0, 0)},
        {"thickness 2", 0, 2, 0, 75, {69, 70}, qRgb(100, 0, 0)},
        {"thickness 50", 1, 50, 5, 0, {45, 94}, qRgb(100, 0, 0)},
        {"transparency 100", 0, 7, 100, 75, {-1, -1}, 0},
        {"more than opaque", 0, 7, -1e300, 75, {67, 73}, qRgb(100, 0, 0)},
        {"more than transparent", 0, 7, 1e300, 75, {-1, -1}, 0},
        {"no number", 0, 7, std::nan(""), 75, {-1, -1}, 0},
    };

    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        view_.setSampleLineType(test.type);
        prefs.lineThickness = test.thickness;
        prefs.lineTransparency = test.scanTransparency;
        prefs.lineGhostTransparency = test.guideTransparency;
        const QImage image = draw();
        EXPECT_EQ(bandOf(image, kBandX), test.rows);
        for (int y = test.rows.first; y >= 0 && y <= test.rows.second; ++y) {
            EXPECT_NEAR(qRed(image.pixel(kBandX, y)), qRed(test.color), 1);
            EXPECT_NEAR(qGreen(image.pixel(kBandX, y)), qGreen(test.color), 1);
        }
        const QRect below(300, 70 + (test.thickness + 1) / 2, 99, 20);
        const QRect label = darkIn(image, below);
        EXPECT_GT(label.width(), 30) << "the label is there";
        EXPECT_GT(label.top(), test.rows.second);
        EXPECT_NEAR(label.right(), 396, 2);
    }
}

TEST_F(SampleScanViewTest, EverythingIsFramedAndTheBandReachesTheFrame) {
    const QImage image = draw();
    for (int x = 0; x < kSize.width(); ++x)
        for (const int y : {0, kSize.height() - 1})
            ASSERT_EQ(image.pixel(x, y), kBlack) << x << ' ' << y;
    for (int y = 0; y < kSize.height(); ++y)
        ASSERT_EQ(image.pixel(kSize.width() - 1, y), kBlack) << y;
    EXPECT_EQ(image.pixel(1, 1), kGrey);
    EXPECT_EQ(image.pixel(398, 138), kGrey);
    EXPECT_EQ(image.pixel(398, 70), image.pixel(kBandX, 70));
}

TEST_F(SampleScanViewTest, ThePaletteStandsAtTheLeftEdgeWithTwoButtons) {
    const struct {
        SInt32 border, gap;
        SInt16 height, width;
        QRect frame, buttons;
    } cases[] = {
        {4, 6, 40, 40, {0, 45, 102, 50}, {10, 50, 86, 40}},
        {0, 0, 20, 30, {0, 59, 62, 22}, {0, 60, 60, 20}},
        {3, 1, 41, 20, {0, 46, 50, 49}, {4, 50, 41, 41}},
    };

    for (const auto& [border, gap, height, width, frame, buttons] : cases) {
        SCOPED_TRACE(testing::Message() << border << ' ' << gap << ' ' << height << ' ' << width);
        prefs.borderGap = border;
        prefs.buttonGap = gap;
        prefs.buttonSize = {height, width};
        const QImage image = draw();
        const QRgb ground = widget_.palette().color(QPalette::Window).rgb();
        QRect seen;
        for (int y = frame.top() + 1; y < frame.bottom(); ++y)
            for (int x = frame.left() + 1; x < frame.right(); ++x)
                if (image.pixel(x, y) != ground)
                    seen |= QRect(x, y, 1, 1);
        EXPECT_EQ(seen, buttons & frame.adjusted(1, 1, -1, -1));
        for (int x = frame.left(); x <= frame.right(); ++x) {
            ASSERT_EQ(image.pixel(x, frame.top()), kBlack) << x;
            ASSERT_EQ(image.pixel(x, frame.bottom()), kBlack) << x;
        }
        ASSERT_EQ(image.pixel(frame.right(), frame.top() + 1), kBlack);
        EXPECT_EQ(image.pixel(frame.right() + 1, frame.top()), kGrey);
        EXPECT_EQ(image.pixel(50, frame.top() - 1), kGrey);
    }
}

TEST_F(SampleScanViewTest, ThePointersHotSpotIsInTheMiddle) {
    const struct {
        const char* name;
        QSize size;
        int left, top;
    } cases[] = {
        {"corner", {400, 140}, 200, 70},    {"spot+1x2", {400, 140}, 199, 68},
        {"spot+1x2", {401, 141}, 199, 69},  {"corner", {401, 141}, 200, 71},
        {"left+-5x0", {400, 140}, 205, 70}, {"edge+203x0", {400, 140}, -3, 70},
    };

    prefs.lineThickness = 1;
    prefs.lineTransparency = 100;
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.name << " in " << test.size.width());
        choosePointer(test.name);
        const QImage image = draw(test.size);
        if (test.left >= 0)
            expectPointerAt(image, test.left, test.top);
        else
            EXPECT_EQ(image.pixel(0, test.top), kBlack) << "the frame lies over it";
    }
}

TEST_F(SampleScanViewTest, WithoutItsPointerNothingElseIsMissing) {
    prefs.pointerImageName[0] = '\0';
    const QImage without = draw();
    choosePointer("there");
    EXPECT_NE(draw(), without);
    for (const char* name :
         {"gone", "../there", "far+2000000000x5", "far+-2147483648x-2147483648", "\xFF\xFE"}) {
        if (name[0] == 'f')
            choosePointer(name);
        std::snprintf(prefs.pointerImageName, sizeof prefs.pointerImageName, "%s", name);
        EXPECT_EQ(draw(), without) << name;
    }
}

TEST_F(SampleScanViewTest, ItIsSharpOnScaledDisplays) {
    for (const double scale : {1.25, 1.5, 1.75, 2.0, 3.0}) {
        SCOPED_TRACE(scale);
        choosePointer("spot+1x2");
        const QImage image = draw(kSize, scale);
        const int x = static_cast<int>(kBandX * scale);
        const auto [top, bottom] = bandOf(image, x);
        EXPECT_NEAR(bottom - top + 1, 7 * scale, 1);
        std::set<QRgb> colors;
        for (int y = 0; y < image.height(); ++y)
            colors.insert(image.pixel(x, y));
        EXPECT_EQ(colors.size(), 3U) << "frame, ground and band, and nothing between them";
        const int whole = static_cast<int>(scale);
        if (whole != scale)
            continue;
        EXPECT_EQ(std::pair(top, bottom), std::pair(67 * whole, 74 * whole - 1));
        expectPointerAt(image, 199 * whole, 68 * whole, whole);
    }
}

TEST_F(SampleScanViewTest, TheLabelIsLegibleInADarkPalette) {
    QPalette dark;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Window, Qt::black);
    const QRect place(300, 74, 98, 20);
    const QImage light = draw().copy(place);
    widget_.setPalette(dark);
    EXPECT_EQ(draw().copy(place), light);
}

TEST_F(SampleScanViewTest, AClickOrAKeyShowsTheOtherLine) {
    const struct {
        SInt32 before, after;
    } cases[] = {
        {0, 1}, {1, 0}, {5, -4}, {-4, 5}, {std::numeric_limits<SInt32>::min(), -2147483647}};

    for (const auto& [before, after] : cases) {
        view_.setSampleLineType(before);
        QTest::mouseClick(&widget_, Qt::LeftButton);
        EXPECT_EQ(view_.sampleLineType(), after);
    }
    view_.setSampleLineType(kSampleScanLine);
    SInt32 shown = kSampleScanLine;
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&widget_, key);
        EXPECT_EQ(view_.sampleLineType(), shown = 1 - shown);
    }
    for (const auto key : {Qt::Key_A, Qt::Key_Escape, Qt::Key_Down})
        QTest::keyClick(&widget_, key);
    QTest::keyClick(&widget_, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(view_.sampleLineType(), shown);
}

TEST_F(SampleScanViewTest, SettingsWithoutMeasureAreDrawnAsFarAsTheyGo) {
    using Limits = std::numeric_limits<SInt32>;
    for (const SInt32 number :
         {Limits::max(), Limits::min(), SInt32{-1}, SInt32{0}, SInt32{40000}}) {
        SCOPED_TRACE(number);
        prefs = PrefsRecord{};
        prefs.lineThickness = number;
        const auto [top, bottom] = bandOf(draw(), 300);
        EXPECT_EQ(bottom - top > 60, number > 1000);
        prefs.borderGap = prefs.buttonGap = number;
        prefs.buttonSize = {static_cast<SInt16>(number), 32767};
        prefs.lineColor = {65535, 0, 65535};
        EXPECT_EQ(draw().pixel(399, 139), kBlack) << "all of it, to the frame";
    }
}

} // namespace
