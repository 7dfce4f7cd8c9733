// SPDX-License-Identifier: MIT
#include "tests/platform/AppKit/TestForm.h"

#include <QColorDialog>

namespace {

using ColorWellTest = FormTest;

TEST_F(ColorWellTest, SendsEachColourTriedAndTheOldOneWhenItIsCancelled) {
    ControlOwner<NSColorWell> owner;
    show(widgetXml("NSColorWell", "well", wired({{"accessibleDescription", "Of both lines."}})),
         owner);
    auto* well = find<QPushButton>("well");
    owner.control->setColor(NSColor::colorWithDeviceRed(100 / 255.0, 0, 0, 1));
    EXPECT_EQ(owner.sent, 0);
    EXPECT_EQ(well->accessibleDescription().toStdString(),
              "Red 100, green 0, blue 0, each of 255. Of both lines.");

    std::vector<std::tuple<double, double, double>> tried;
    owner.onAction = [&](NSColorWell* by) {
        const NSColor color = by->color();
        tried.emplace_back(color.redComponent() * 255, color.greenComponent() * 255,
                           color.blueComponent() * 255);
    };
    const auto openChooser = [&] {
        QTest::qWait(0);
        QTest::keyClick(well, Qt::Key_Space);
        auto* chooser = well->findChild<QColorDialog*>();
        EXPECT_TRUE(chooser->isVisible() && !chooser->isModal());
        return chooser;
    };
    QColorDialog* chooser = openChooser();
    chooser->setCurrentColor(QColor(0, 255, 0));
    EXPECT_EQ(openChooser(), chooser) << "there is one chooser";
    QTest::keyClick(chooser, Qt::Key_Escape);
    EXPECT_THAT(tried, testing::ElementsAre(std::tuple(0, 255, 0), std::tuple(100, 0, 0)));

    tried.clear();
    openChooser()->reject();
    EXPECT_TRUE(tried.empty()) << "nothing was tried";
    chooser = openChooser();
    chooser->setCurrentColor(QColor(9, 9, 9));
    nib_.topLevelWidget()->hide();
    EXPECT_FALSE(chooser->isVisible());
    EXPECT_THAT(tried, testing::ElementsAre(std::tuple(9, 9, 9))) << "it isn't cancelled";
}

} // namespace
