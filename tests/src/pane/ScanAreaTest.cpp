// SPDX-License-Identifier: MIT
#include "tests/support/PaneFixture.h"

namespace {

/// A Qt platform on which, for the layer, windows can't cover the screen.
struct OtherPlatform {
    OtherPlatform() { setenv("QT_QPA_PLATFORM", "minimal", 1); }
};

class NoOverlayTest : private OtherPlatform, public PaneTest {};

TEST_F(NoOverlayTest, TheUserIsToldWhyNoAreaCanBeDrawn) {
    prefs.scanArea = {1, 2, 3, 4};
    openWithAgent();
    click("scanAreaBtn");
    EXPECT_THAT(find<QLabel>("scanAreaText")->text().toStdString(),
                testing::HasSubstr("no window cover the screens"));
    EXPECT_EQ(prefs.scanArea.width, 3);
}

using AreaTest = PaneTest;

TEST_F(AreaTest, TheWholeScreenIsNoAreaAndAMissingSideIsSaid) {
    openWithAgent();
    const auto chooseFirst = [&] {
        act(QAccessible::queryAccessibleInterface(find("scanAreaGrid"))->child(0));
    };
    prefs.scanArea = {0, 0, 640, 480};
    prefs.useScanArea = 1;
    chooseFirst();
    EXPECT_EQ(prefs.useScanArea, 0);
    EXPECT_EQ(prefs.scanArea.width, 640) << "it can be used again";
    for (const auto& [area, text] : {std::pair{ScanArea{0, 0, 640, 0}, "The height is missing."},
                                     {{0, 0, 0, 480}, "The width is missing."},
                                     {{7, 8, 0, 0}, "none"}}) {
        prefs.scanArea = area;
        theWrangler->loadValues();
        EXPECT_EQ(find<QLabel>("scanAreaText")->text(), QLatin1String(text));
    }
    EXPECT_EQ(remainingMasks(), std::vector<ChangeMask>{kChangeScanArea});
}

} // namespace
