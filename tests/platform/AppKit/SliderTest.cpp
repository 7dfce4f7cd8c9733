// SPDX-License-Identifier: MIT
#include "tests/platform/AppKit/TestForm.h"

#include <QWheelEvent>

namespace {

/// From 1 to 20 in tenths, 190 steps.
class SliderTest : public FormTest {
protected:
    void SetUp() override {
        const Properties range = {{"minValue", "1"}, {"maxValue", "20"}, {"maximum", "190"}};
        show(widgetXml("QWidget", "group", {},
                       layoutXml({widgetXml("QSlider", "slider", wired(range)),
                                  widgetXml("QLabel", "value", {{"text", " 10.0 sec"}})})),
             owner_);
        slider_ = find<QSlider>("slider");
        slider_->setOrientation(Qt::Horizontal);
        slider_->setFixedWidth(300);
        QTest::qWait(0); // for the layout
    }

    double value() const { return owner_.control->doubleValue(); }

    ControlOwner<NSSlider> owner_;
    QSlider* slider_ = nullptr;
};

TEST_F(SliderTest, KeepsValuesFromCodeAndMovesInStepsByKeys) {
    for (const auto& [set, kept, position] :
         {std::tuple(3.16, 3.16, 22), std::tuple(0., 1., 0), std::tuple(99., 20., 190)}) {
        owner_.control->setDoubleValue(set);
        EXPECT_EQ(value(), kept);
        EXPECT_EQ(slider_->value(), position);
    }
    EXPECT_EQ(owner_.sent, 0);
    for (const auto& [key, moved] :
         {std::pair(Qt::Key_Left, 19.9), std::pair(Qt::Key_PageDown, 18.9),
          std::pair(Qt::Key_End, 20.)}) {
        QTest::keyClick(slider_, key);
        EXPECT_EQ(value(), moved);
        EXPECT_EQ(std::exchange(owner_.sent, 0), 1);
    }
    QTest::keyClick(slider_, Qt::Key_Right);
    EXPECT_EQ(owner_.sent, 0) << "at the limit nothing changes";
}

TEST_F(SliderTest, GoesToAClickAndLeavesTheWheelToThePage) {
    const QPoint place(75, slider_->height() / 2);
    QTest::mouseClick(slider_, Qt::LeftButton, {}, place);
    EXPECT_NEAR(value(), 5.75, 0.5);
    owner_.sent = 0;
    QWheelEvent wheel(place, {}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider_, &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(owner_.sent, 0);
}

} // namespace
