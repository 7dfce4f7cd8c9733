// SPDX-License-Identifier: MIT
#include "agent/session/Overlay.h"
#include "agent/x11/XOverlayWindow.h"
#include "tests/agent/DisplayTest.h"

#include <QProcess>

namespace {

/// A pointer of 8 by 8 pixels: opaque blue at the left, hardly to be seen at the right. The hot
/// spot is in the middle.
PointerImage halfPointer() {
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    for (int x = 0; x < 8; ++x)
        for (int y = 0; y < 8; ++y)
            image.setPixel(x, y, x < 4 ? qRgb(0, 0, 255) : qPremultiply(qRgba(0, 0, 255, 60)));
    return {.image = CFRef<CGImage>::adopt(new CGImage(image)), .hotSpot = {4, 4}};
}

class OverlayTest : public DisplayTest {
protected:
    void SetUp() override {
        DisplayTest::SetUp();
        record_.lineColor = {200, 0, 0};
        record_.lineThickness = 6;
        record_.lineTransparency = 20;
        record_.lineGhostTransparency = 75;
        otherWindow({0, 0, kWidth, kHeight}, kWhite);
        windows_.emplace(*server_);
        overlay_.emplace(*windows_);
        overlay_->setLook(record_, 1, halfPointer());
    }

    void show(const Picture& picture) {
        overlay_->show(picture);
        sync();
    }

    /// The rows with that colour in a column of the screen: the first, and how many.
    std::pair<int, int> rowsOf(QRgb color, int x) {
        const QImage image = screenshot();
        std::pair<int, int> rows{-1, 0};
        for (int y = 0; y < kHeight; ++y)
            if (image.pixel(x, y) == color && rows.second++ == 0)
                rows.first = y;
        return rows;
    }

    /// How much of a row of the screen has that colour.
    double shareOf(QRgb color, int y) {
        const QImage image = screenshot();
        int count = 0;
        for (int x = 0; x < kWidth; ++x)
            count += image.pixel(x, y) == color;
        return count / double(kWidth);
    }

    PrefsRecord record_;
    std::optional<XOverlayWindows> windows_;
    std::optional<Overlay> overlay_;
};

const Area kRegion{100, 50, 600, 500};

TEST_F(OverlayTest, WithoutACompositorTheGuidesAreDashedAndThePointerIsCutOut) {
    show({{}, 300, 400, {}, kRegion});
    EXPECT_NEAR(shareOf(kRed, 298), 0.25 * 600 / kWidth, 0.02) << "as much as it would be opaque";
    const auto [first, count] = rowsOf(kRed, 398);
    EXPECT_GE(first, 50);
    EXPECT_NEAR(count, 0.25 * 500, 15) << "the cross, over the region's height";
    EXPECT_EQ(colorAt(397, 300), kBlue) << "the pointer is over the lines";
    EXPECT_NE(colorAt(401, 303), kBlue) << "its faint half isn't shown";
    EXPECT_EQ(rowsOf(kBlue, 396), std::pair(296, 8));

    record_.lineGhostTransparency = 100;
    overlay_->setLook(record_, 1, halfPointer());
    sync();
    EXPECT_EQ(shareOf(kRed, 298), 0);
    EXPECT_EQ(rowsOf(kBlue, 397).second, 8) << "the pointer stays";

    show({{}, {}, {}, Area{100, 100, 600, 50}, kRegion});
    EXPECT_EQ(rowsOf(kRed, 400), std::pair(100, 4)) << "edges of two pixels above and below";
    EXPECT_EQ(colorAt(400, 149), kRed);
    EXPECT_EQ(colorAt(400, 125), kWhite);

    show({{}, {}, {}, {}, {kRegion}, Area{200, 200, 40, 20}});
    EXPECT_EQ(rowsOf(kRed, 220), std::pair(195, 6)) << "the ring, three pixels above and below";
    EXPECT_EQ(colorAt(220, 199), kWhite) << "with room around the target";
}

TEST_F(OverlayTest, WithACompositorItIsTransparentAndFollowsItsComingAndGoing) {
    show({100, 300, 400, {}, kRegion});
    const auto blended = [](double alpha) {
        const int rest = static_cast<int>(std::lround(255 * (1 - alpha)));
        return qRgb(static_cast<int>(std::lround(200 * alpha)) + rest, rest, rest);
    };
    const auto isNear = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) < 4 && std::abs(qGreen(a) - qGreen(b)) < 4 &&
               std::abs(qBlue(a) - qBlue(b)) < 4;
    };
    QProcess picom;
    picom.start(QStringLiteral("picom"),
                {QStringLiteral("--backend"), QStringLiteral("xrender"), QStringLiteral("--config"),
                 QStringLiteral("/dev/null"), QStringLiteral("--shadow")});
    ASSERT_TRUE(picom.waitForStarted());
    EXPECT_TRUE(QTest::qWaitFor([&] { return isNear(colorAt(200, 100), blended(0.8)); }, 20'000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isNear(colorAt(200, 300), blended(0.25)); }));
    EXPECT_TRUE(isNear(colorAt(398, 500), blended(0.25))) << "the cross";
    EXPECT_EQ(colorAt(200, 305), kWhite) << "no shadow";
    EXPECT_EQ(colorAt(397, 303), kBlue);
    EXPECT_NE(colorAt(402, 303), kBlue);
    EXPECT_LT(qRed(colorAt(402, 304)), 250) << "the pointer's faint half";

    picom.terminate();
    ASSERT_TRUE(picom.waitForFinished());
    EXPECT_TRUE(QTest::qWaitFor([&] { return colorAt(200, 100) == kRed; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(shareOf(kRed, 298) - 0.1875) < 0.02; }))
        << "dashed again";
}

TEST_F(OverlayTest, IsRaisedAboveWhatComesLaterAndTakesNoClicks) {
    const Picture picture{200, 200, 400, Area{100, 180, 600, 60}, kRegion};
    show(picture);
    const xcb_window_t fullScreen = otherWindow({0, 0, kWidth, kHeight}, kBlue);
    EXPECT_EQ(shareOf(kBlue, 200), 1) << "what is mapped later is above";
    show(picture);
    EXPECT_GT(shareOf(kRed, 200), 0.7);

    EXPECT_EQ(clickedAt(398, 200), fullScreen);
}

} // namespace
