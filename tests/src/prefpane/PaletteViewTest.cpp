#include "src/prefpane/PaletteView.h"

#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/ViewWidget.h"
#include "src/prefs.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <optional>

namespace {

/// The view on its own, without an agent: its buttons are blank.
class PaletteViewTest : public testing::Test, public PaletteViewTarget {
protected:
    PaletteViewTest() {
        view_.attachWidget(&widget_);
        view_.setTarget(this);
    }

    void paletteBtnHit(PaletteView* view, SInt32 index) override {
        EXPECT_EQ(view, &view_);
        hit_ = index;
    }

    QImage draw(int width, int height) {
        widget_.resize(width, height);
        return widget_.grab().toImage();
    }

    std::optional<SInt32> hitAt(int x, int y) {
        hit_.reset();
        NSEvent event = NSEvent::mouseDown({static_cast<float>(x), static_cast<float>(y)});
        view_.mouseDown(&event);
        return hit_;
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    std::optional<SInt32> hit_;

protected:
    ViewWidget widget_{nullptr};
    PaletteView view_;
};

TEST_F(PaletteViewTest, NineSquaresFillTheRow) {
    const struct {
        int width, height;
        float gap;
    } cases[] = {
        {400, 40, 5}, {403, 40, 5}, {407, 40, 5}, {408, 40, 6}, {360, 40, 0}, {300, 40, -7},
    };

    for (const auto& [width, height, gap] : cases) {
        SCOPED_TRACE(testing::Message() << width << " by " << height);
        draw(width, height);
        for (SInt32 i = 0; i < kNumPaletteSlots; ++i) {
            const NSRect frame = view_.boundsOfBtn(i);
            EXPECT_EQ(frame.x, static_cast<float>(i) * (static_cast<float>(height) + gap));
            EXPECT_EQ(frame.y, 0);
            EXPECT_EQ(frame.width, height);
            EXPECT_EQ(frame.height, height);
        }
    }
    for (const SInt32 none : {-1, kNumPaletteSlots})
        EXPECT_EQ(view_.boundsOfBtn(none).width, 0);
}

TEST_F(PaletteViewTest, EveryClickIsReportedWithTheButtonItHit) {
    widget_.resize(400, 40);
    EXPECT_EQ(hitAt(20, 20), kNoButton) << "nothing was drawn yet";
    draw(400, 40);
    EXPECT_EQ(hitAt(0, 0), 0);
    EXPECT_EQ(hitAt(39, 39), 0);
    EXPECT_EQ(hitAt(42, 20), kNoButton) << "between two buttons";
    EXPECT_EQ(hitAt(45, 20), 1);
    EXPECT_EQ(hitAt(399, 20), 8);
    EXPECT_EQ(hitAt(400, 20), kNoButton);
    EXPECT_EQ(hitAt(20, 40), kNoButton);
    draw(300, 40);
    EXPECT_EQ(hitAt(35, 20), 0) << "where two overlap, the first";
    EXPECT_EQ(view_.selectedBtn(), 0) << "clicks don't select";
}

TEST_F(PaletteViewTest, TheSelectedButtonLooksPushedIn) {
    view_.selectBtn(kNoButton);
    const QImage none = draw(400, 40);
    view_.selectBtn(1);
    const QImage one = draw(400, 40);
    const auto differs = [&](int slot) {
        const QRect frame(slot * 45, 0, 40, 40);
        return none.copy(frame) != one.copy(frame);
    };
    EXPECT_FALSE(differs(0));
    EXPECT_TRUE(differs(1));
    EXPECT_FALSE(differs(2));
}

TEST_F(PaletteViewTest, SlotsWithoutATitleStillHaveAName) {
    prefs.buttonActions[0] = 255;
    prefs.buttonActions[1] = 0;
    EXPECT_EQ(paletteSlotName(0), "1, Action 255");
    EXPECT_EQ(paletteSlotName(1), "2, Empty slot");
    draw(400, 40);
}

} // namespace
