#include "tests/platform/AppKit/TestForm.h"

#include <QColorDialog>
#include <QPushButton>

namespace {

using testing::ElementsAre;

class ColorWellTest : public FormTest {
protected:
    void SetUp() override {
        show(widgetXml("NSColorWell", "well",
                       {{"outlet", "control"},
                        {"action", "acted:"},
                        {"accessibleDescription", "Of both lines."}}),
             owner_);
        well_ = find<QPushButton>("well");
        owner_.control->setColor(NSColor::colorWithDeviceRed(100 / 255.0, 0, 0, 1));
        owner_.onAction = [this] {
            const NSColor color = owner_.control->color();
            tried_.emplace_back(color.redComponent() * 255, color.greenComponent() * 255,
                                color.blueComponent() * 255);
        };
    }

    QColorDialog* openChooser() {
        well_->setFocus();
        QTest::keyClick(well_, Qt::Key_Space);
        auto* chooser = well_->findChild<QColorDialog*>();
        EXPECT_TRUE(chooser && chooser->isVisible() && !chooser->isModal());
        return chooser;
    }

    ControlOwner<NSColorWell> owner_;
    QPushButton* well_ = nullptr;
    std::vector<std::tuple<double, double, double>> tried_;
};

TEST_F(ColorWellTest, EachColourTriedIsSentAndCancellingSendsTheOldOne) {
    QColorDialog* chooser = openChooser();
    EXPECT_EQ(chooser->currentColor(), QColor(100, 0, 0));
    chooser->setCurrentColor(QColor(0, 255, 0));
    chooser->setCurrentColor(QColor(1, 2, 3));
    EXPECT_EQ(openChooser(), chooser) << "there is one chooser";
    QTest::keyClick(chooser, Qt::Key_Escape);
    EXPECT_THAT(tried_,
                ElementsAre(std::tuple(0, 255, 0), std::tuple(1, 2, 3), std::tuple(100, 0, 0)));

    QTest::qWait(0);
    openChooser()->reject();
    EXPECT_EQ(tried_.size(), 3U) << "nothing was tried";
    QTest::qWait(0);
    chooser = openChooser();
    chooser->setCurrentColor(QColor(9, 9, 9));
    chooser->accept();
    EXPECT_EQ(tried_.size(), 4U);
    EXPECT_EQ(tried_.back(), std::tuple(9, 9, 9));
}

TEST_F(ColorWellTest, ScreenReaderHearsTheColour) {
    EXPECT_EQ(well_->accessibleDescription().toStdString(),
              "Red 100, green 0, blue 0, each of 255. Of both lines.");
    owner_.control->setColor(NSColor::colorWithDeviceRed(0, 1, 0.5, 1));
    EXPECT_EQ(well_->accessibleDescription().toStdString(),
              "Red 0, green 255, blue 128, each of 255. Of both lines.");
    EXPECT_EQ(owner_.sent, 0);
    EXPECT_GE(well_->width(), 44);
    EXPECT_GE(well_->height(), 24);
}

TEST_F(ColorWellTest, ChooserGoesWithTheWindowWithoutCancelling) {
    QColorDialog* chooser = openChooser();
    chooser->setCurrentColor(QColor(0, 0, 255));
    nib_.topLevelWidget()->hide();
    EXPECT_FALSE(chooser->isVisible());
    EXPECT_THAT(tried_, ElementsAre(std::tuple(0, 0, 255)));
}

} // namespace
