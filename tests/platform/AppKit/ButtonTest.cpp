#include "tests/platform/AppKit/TestForm.h"

#include <QElapsedTimer>
#include <QPushButton>

namespace {

class ButtonTest : public FormTest {
protected:
    void showPeriodic() {
        show(widgetXml(
                 "QWidget", "group", {},
                 widgetXml("QPushButton", "button", {{"outlet", "control"}, {"action", "acted:"}}) +
                     widgetXml("QSlider", "slider", {})),
             owner_);
        button_ = find<QPushButton>("button");
        button_->setFocusPolicy(Qt::StrongFocus);
        owner_.control->setPeriodicDelay(1.0F, 0.25F);
        owner_.control->setPeriodicDelay(1.0F, 0.25F);
        owner_.onAction = [this] { times_.push_back(clock_.elapsed()); };
        clock_.start();
    }

    ControlOwner<NSButton> owner_;
    QPushButton* button_ = nullptr;
    QElapsedTimer clock_;
    std::vector<qint64> times_;
};

TEST_F(ButtonTest, ShortClickSendsOnce) {
    showPeriodic();
    QTest::mouseClick(button_, Qt::LeftButton);
    button_->setFocus();
    QTest::keyClick(button_, Qt::Key_Space);
    EXPECT_EQ(owner_.sent, 2);
    QTest::qWait(1300);
    EXPECT_EQ(owner_.sent, 2);
}

TEST_F(ButtonTest, HoldingRepeatsAndTheReleaseSendsNothing) {
    showPeriodic();
    const std::function<void()> kPresses[] = {
        [&] { QTest::mousePress(button_, Qt::LeftButton); },
        [&] { QTest::keyPress(button_, Qt::Key_Space); },
    };
    const std::function<void()> kReleases[] = {
        [&] { QTest::mouseRelease(button_, Qt::LeftButton); },
        [&] { QTest::keyRelease(button_, Qt::Key_Space); },
    };
    for (int way = 0; way < 2; ++way) {
        times_.clear();
        clock_.restart();
        kPresses[way]();
        ASSERT_TRUE(QTest::qWaitFor([&] { return times_.size() == 3; }, 5000));
        kReleases[way]();
        EXPECT_THAT(times_[0], testing::AllOf(testing::Ge(990), testing::Lt(1250)));
        EXPECT_THAT(times_[2] - times_[0], testing::AllOf(testing::Ge(450), testing::Lt(750)));
        QTest::qWait(400);
        EXPECT_EQ(times_.size(), 3U);
    }
    QTest::mouseClick(button_, Qt::LeftButton);
    EXPECT_EQ(times_.size(), 4U);
}

TEST_F(ButtonTest, DisablingOrHidingInMidHoldStopsAndTheFocusStaysInTheGroup) {
    showPeriodic();
    owner_.onAction = [this] { owner_.control->setEnabled(false); };
    QTest::mousePress(button_, Qt::LeftButton);
    EXPECT_TRUE(button_->hasFocus());
    QTest::qWait(1600);
    EXPECT_EQ(owner_.sent, 1);
    EXPECT_TRUE(find("slider")->hasFocus());
    QTest::mouseRelease(button_, Qt::LeftButton);

    owner_.onAction = nullptr;
    owner_.control->setEnabled(true);
    QTest::mousePress(button_, Qt::LeftButton);
    owner_.control->removeFromSuperview();
    QTest::qWait(1300);
    EXPECT_EQ(owner_.sent, 1);
}

TEST_F(ButtonTest, CheckBoxSendsForTheUserOnly) {
    show(widgetXml("QCheckBox", "check", {{"outlet", "control"}, {"action", "acted:"}}), owner_);
    owner_.control->setState(5);
    EXPECT_EQ(owner_.control->state(), NSOnState);
    EXPECT_EQ(owner_.sent, 0);
    const QPoint box(8, find("check")->height() / 2);
    QTest::mouseClick(find("check"), Qt::LeftButton, {}, box);
    EXPECT_EQ(owner_.control->state(), NSOffState);
    EXPECT_EQ(owner_.sent, 1);
    owner_.control->setEnabled(false);
    EXPECT_FALSE(owner_.control->isEnabled());
    QTest::mouseClick(find("check"), Qt::LeftButton, {}, box);
    EXPECT_EQ(owner_.sent, 1);
}

} // namespace
