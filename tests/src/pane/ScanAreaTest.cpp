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

} // namespace
