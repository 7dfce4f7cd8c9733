// SPDX-License-Identifier: MIT
#include "src/pane/pointers/ptrman.h"
#include "src/record/settingwords.h"
#include "tests/support/PaneFixture.h"

namespace {

/// The preview and the pointer's name in the open pane.
using PointerChoiceTest = PaneTest;

TEST_F(PointerChoiceTest, ThePreviewAndTheNameTellWhatIsSet) {
    QAccessible::setActive(true);
    open();
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(find("sampleScanImage"));
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_TRUE(button->text(QAccessible::Description)
                    .startsWith("7 points thick, 5% transparent, red 100, green 0, blue 0"));
    act(button);
    EXPECT_EQ(button->text(QAccessible::Name), "Preview of the guide line");
    EXPECT_TRUE(button->text(QAccessible::Description).contains("75% transparent"));
    QTest::keyClick(find("sampleScanImage"), Qt::Key_Space);
    EXPECT_EQ(button->text(QAccessible::Name), "Preview of the scan line");
    for (const auto& [control, line] : {std::pair("guideTransparencyDecBtn", "guide"),
                                        {"lineThicknessIncBtn", "guide"}, // of both lines
                                        {"lineTransparencyIncBtn", "scan"}}) {
        click(control);
        EXPECT_EQ(button->text(QAccessible::Name),
                  QStringLiteral("Preview of the %1 line").arg(line));
    }
    std::strcpy(prefs.pointerImageName, "../default");
    theWrangler->loadValues();
    EXPECT_EQ(find<QLabel>("pointerName")->text(), "None");
    click("nextPointerBtn");
    EXPECT_NE(find<QLabel>("pointerName")->text(), "None");
    for (const auto& [key, line] : {std::pair("scanner.lineGhostTransparency", "guide"),
                                    {"scanner.pointerScanTime", "guide"}, // of neither
                                    {"scanner.lineTransparency", "scan"}}) {
        PrefsRecord record = prefs;
        const Setting& setting = *settingOfKey(key);
        setSettingNumber(setting, settingNumber(setting, record) - 1, record);
        theWrangler->adopt(differences(prefs, record), record);
        EXPECT_EQ(button->text(QAccessible::Name),
                  QStringLiteral("Preview of the %1 line").arg(line));
    }
    pane_->didUnselect();
    auto* grid = QAccessible::queryAccessibleInterface(find("pointerGrid"));
    EXPECT_FALSE(find("pointerGrid")->grab().isNull());
    EXPECT_GT(grid->childCount(), 1);
    for (int i = 0; i < grid->childCount(); ++i)
        EXPECT_FALSE(grid->child(i)->text(QAccessible::Name).isEmpty());
    pane_.reset();
    char name[kMaxPointerNameLength + 1];
    EXPECT_FALSE(ptrmanGetNextPointer(nullptr, true, name)) << "names outlive the visit";
}

} // namespace
