// SPDX-License-Identifier: MIT
#include "agent/Palette.h"

#include "agent/session/Overlay.h"
#include "agent/x11/XOverlayWindow.h"
#include "platform/QuickDraw/detail/GrafPort.h"
#include "src/scan/palutil.h"
#include "tests/agent/DisplayTest.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr UInt8 kDouble = 21;

CFBundle* agentBundle() {
    static const auto bundle =
        CFBundleCreate(CFURLCreateFromFileSystemRepresentation(
                           KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app", true)
                           .get());
    return bundle.get();
}

/// Shows the usual palette on a white screen: five buttons of 40 points, in a frame at 0, 275.
class PaletteTest : public DisplayTestWith<QApplication> {
protected:
    void SetUp() override {
        DisplayTestWith::SetUp();
        palutilUseBundle(agentBundle);
        palutilSetup();
        otherWindow({0, 0, kWidth, kHeight}, kWhite);
        windows_.emplace(*server_);
        palette_.emplace(*windows_, actions_);
        palette_->use(record_);
    }

    void TearDown() override {
        palette_.reset();
        palutilCleanup();
    }

    void show(std::optional<Place> pointer = {}, const std::string& text = {},
              const OverlayWindow* above = nullptr) {
        palette_->show(region_, pointer, text, above);
        sync();
    }

    /// What the screen has there.
    QImage shown(const QRect& place) {
        return screenshot().copy(place).convertToFormat(QImage::Format_RGB32);
    }

    static QRect button(int slot) { return {11 + 46 * slot, 280, 40, 40}; }

    /// As the pane draws that button.
    QImage drawn(UInt8 action, bool isOn) const {
        QImage image(40, 40, QImage::Format_RGB32);
        QWidget widget;
        widget.resize(40, 40);
        image.fill(widget.palette().color(QPalette::Window));
        QPainter painter(&image);
        const GrafPort port(painter, widget);
        palutilDrawBtnAs(action, isOn, {0, 0, 40, 40}, record_.buttonShape, record_.buttonContent);
        return image;
    }

    PrefsRecord record_;
    Region region_{{0, 0, kWidth, kHeight}};
    Actions actions_;
    std::optional<XOverlayWindows> windows_;
    std::optional<Palette> palette_;
};

TEST_F(PaletteTest, ShowsTheButtonsAsThePaneDrawsThem) {
    show();
    for (int slot = 0; slot < 5; ++slot)
        EXPECT_EQ(shown(button(slot)), drawn(record_.buttonActions[slot], false)) << slot;
    EXPECT_EQ(colorAt(0, 275), kBlack) << "the frame";
    EXPECT_EQ(colorAt(245, 324), kBlack);
    EXPECT_EQ(colorAt(246, 300), kWhite) << "beside it";
    EXPECT_EQ(colorAt(100, 274), kWhite);

    // Its state, and a new record, are seen at the next frame.
    actions_.chooseButton(kDouble, 0);
    show(Place{20, 300});
    EXPECT_EQ(shown(button(1)), drawn(kDouble, true)) << "armed";
    EXPECT_NE(shown(button(0)), drawn(20, false)) << "the pointer is on it";
    show(Place{54, 300});
    EXPECT_EQ(shown(button(0)), drawn(20, false)) << "between two";
    record_.buttonActions[1] = 12;
    record_.buttonShape = kButtonShapeRounded;
    palette_->use(record_);
    show();
    EXPECT_EQ(shown(button(1)), drawn(12, false));

    QPalette dark;
    dark.setColor(QPalette::Window, Qt::darkBlue);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents(); // brings it to the widgets
    show();
    EXPECT_EQ(colorAt(4, 300), QColor(Qt::darkBlue).rgb()) << "the desktop got dark";
    QApplication::setPalette(QPalette());

    region_.palette = PalettePart::None;
    show();
    EXPECT_EQ(colorAt(4, 300), kWhite) << "none over a menu";
}

TEST_F(PaletteTest, LiesBelowTheLinesAndTakesNoClicks) {
    record_.lineColor = {200, 0, 0};
    Overlay overlay(*windows_);
    overlay.setLook(record_, 1, {});
    const Picture line{300, {}, {}, {}, region_};
    show({}, {}, overlay.show(line));
    EXPECT_EQ(colorAt(30, 300), kRed);
    const xcb_window_t other = otherWindow({0, 0, kWidth, kHeight}, kWhite);
    EXPECT_EQ(colorAt(30, 290), kWhite) << "what is mapped later is above";
    show({}, {}, overlay.show(line));
    EXPECT_NE(colorAt(13, 290), kWhite);
    EXPECT_EQ(colorAt(30, 300), kRed);

    EXPECT_EQ(clickedAt(30, 290), other);

    palette_->hide();
    sync();
    EXPECT_EQ(colorAt(13, 290), kWhite);
}

TEST_F(PaletteTest, ATextStandsBesideItOrBelowWhereThereIsNoRoom) {
    const std::string text = "That can't be done here.";
    show({}, text);
    EXPECT_EQ(colorAt(252, 300), kBlack) << "its frame";
    EXPECT_NE(colorAt(254, 300), kWhite);
    region_.area.width = 520; // a row of 246
    show({}, text + text + text);
    EXPECT_EQ(colorAt(252, 300), kWhite);
    EXPECT_EQ(colorAt(0, 340), kBlack) << "below it";
    EXPECT_EQ(colorAt(521, 340), kWhite) << "shortened to the region";
    show();
    EXPECT_EQ(colorAt(0, 340), kWhite);
    EXPECT_EQ(colorAt(0, 300), kBlack);
}

} // namespace
