// SPDX-License-Identifier: MIT
#include "tests/platform/AppKit/TestForm.h"

#include <QElapsedTimer>

namespace {

class ButtonTest : public FormTest {
protected:
    void SetUp() override {
        show(widgetXml("QWidget", "group", {},
                       layoutXml({widgetXml("QPushButton", "button", wired()),
                                  widgetXml("QSlider", "slider")},
                                 "QHBoxLayout")),
             owner_);
        button_ = find<QPushButton>("button");
        button_->setFocusPolicy(Qt::StrongFocus);
        for (int i = 0; i < 2; ++i)
            owner_.control->setPeriodicDelay(1.0F, 0.25F);
    }

    ControlOwner<NSButton> owner_;
    QPushButton* button_ = nullptr;
};

TEST_F(ButtonTest, RemovingOrDisablingItInMidHoldStopsItAndTheFocusStaysInTheGroup) {
    NSView* group = owner_.control->superview();
    const QRect place = button_->geometry();
    for (const bool removing : {true, false}) {
        owner_.onAction = [=](NSButton* by) {
            removing ? by->removeFromSuperview() : by->setEnabled(false);
        };
        QTest::mousePress(button_, Qt::LeftButton);
        QTest::qWait(1600);
        EXPECT_EQ(std::exchange(owner_.sent, 0), 1);
        EXPECT_TRUE(find("slider")->hasFocus());
        EXPECT_EQ(button_->isVisible(), !removing);
        EXPECT_LT(place.right(), find("slider")->x()) << "its place stays empty";
        group->addSubview(owner_.control);
        QTest::qWait(0);
        EXPECT_TRUE(button_->isVisible());
        EXPECT_EQ(button_->geometry(), place);
    }
}

} // namespace
