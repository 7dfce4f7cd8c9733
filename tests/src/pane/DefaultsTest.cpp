// SPDX-License-Identifier: MIT
#include "tests/support/PaneFixture.h"

#include <cstring>

namespace {

/// Settings that aren't at their defaults, marked and put back in the real window, with the real
/// agent.
class DefaultsTest : public PaneTest, public testing::WithParamInterface<std::string> {
protected:
    void press(const char* name) {
        auto* button = find<QAbstractButton>(name);
        if (GetParam() == "mouse")
            return QTest::mouseClick(button, Qt::LeftButton);
        if (GetParam() == "keyboard") {
            button->setFocus();
            return QTest::keyClick(button, Qt::Key_Space);
        }
        act(button);
    }

    /// Whether the row shows its bar.
    bool isMarked(const QString& button) { return find((button + "Bar").toLatin1())->isVisible(); }
};

INSTANTIATE_TEST_SUITE_P(By, DefaultsTest, testing::Values("mouse", "keyboard", "action"));

TEST_P(DefaultsTest, EachRowThatDiffersIsMarkedAndPutBack) {
    const struct {
        void (*change)(PrefsRecord& record);
        const char* button;
        const char* label;
        ChangeMask mask;
    } cases[] = {
        {[](auto& r) { r.lineScanTime = 12.5; }, "lineScanTimePutBack",
         "Reset “Line crosses the screen in” to 20.0 sec", kChangeScanSpeed},
        {[](auto& r) { r.canScanMenuBar = 0; }, "canScanMenuBarCheckPutBack",
         "Reset “Scan the menu bar too” to on", 0},
        {[](auto& r) { r.launchAtLogin = 0; }, "launchAtLoginPutBack",
         "Reset “Start Korvex when you log in” to on", kChangeLaunch},
        {[](auto& r) { r.scanMode = 2; }, "scanModeRadios2PutBack",
         "Reset “Way of scanning” to “Press to start, press to choose”", kChangeTriggers},
        {[](auto& r) {
             r.scanArea = {0, 0, 640, 480};
         },
         "scanAreaRowPutBack", "Reset “My own area” to none", kChangeScanArea},
        {[](auto& r) {
             r.lineColor = {0, 0, 255};
         },
         "lineColorRowPutBack", "Reset “Line colour” to Red (#640000)",
         kChangeScanLineLook | kChangeGuideLineLook},
        {[](auto& r) { std::strcpy(r.pointerImageName, "big"); }, "pointerRowPutBack",
         "Reset “Pointer” to “default”", kChangePointer},
        {[](auto& r) { r.buttonShape = 1; }, "buttonShapeRowPutBack",
         "Reset “Corners of the buttons” to “Square”", kChangePalette},
        {[](auto& r) { r.buttonContent = 1; }, "buttonContentNameCheckPutBack",
         "Reset “Show the name” to on", kChangePalette},
        {[](auto& r) { r.buttonSize.width = 60; }, "buttonWidthPutBack",
         "Reset “Size of the buttons” to 40 × 40 points", kChangePalette},
        {[](auto& r) {
             r.hotKeys[2] = {-1, 0};
         },
         "cancelScanKeyRowPutBack", "Reset “Cancel the scan (hot key)” to esc", kChangeHotKeys},
        {[](auto& r) { r.buttonActions[0] = 5; }, "paletteEditorPutBack",
         "Reset “Palette button 1” to “Click”", kChangePalette},
    };

    muteNotice("<key>scanner.lineScanTime</key><string>20.0</string>");
    openWithAgent();
    const PrefsRecord start = prefs; // with the administrator's line
    EXPECT_EQ(double{start.lineScanTime}, 20);
    for (const auto& [change, name, label, mask] : cases) {
        SCOPED_TRACE(name);
        auto* button = find<QAbstractButton>(name);
        QTest::qWait(0);
        const QRect row = button->parentWidget()->geometry();
        EXPECT_FALSE(button->isVisible() || isMarked(name));
        PrefsRecord changed = prefs;
        change(changed);
        theWrangler->adopt(differences(prefs, changed), changed);
        EXPECT_EQ(agentLog_.nextMask(), mask);
        QTest::qWait(0);
        EXPECT_TRUE(button->isVisible() && isMarked(name));
        const auto* other = window()->findChild<QWidget*>(QStringLiteral("scanModeRadios0PutBack"));
        EXPECT_TRUE(other->isHidden()) << "of a group, only what is chosen is marked";
        // Its words are more now; other rows are open above it.
        if (mask != kChangeScanArea && mask != kChangeTriggers) {
            EXPECT_EQ(button->parentWidget()->geometry(), row) << "the row has jumped";
        }
        EXPECT_EQ(button->accessibleName().toStdString(), label);
        for (int presses = 0; presses < 2; ++presses) // a second one does nothing
            if (button->isVisible())
                press(name);
        EXPECT_EQ(agentLog_.nextMask(), mask);
        EXPECT_TRUE(differences(prefs, start).none());
        EXPECT_FALSE(isMarked(name));
        find("helpBtn")->setFocus();
        EXPECT_FALSE(button->isVisible());
        EXPECT_NE(told(), "");
    }
}

TEST_P(DefaultsTest, ASectionOrAllGoBackInOneChangeThatCanBeUndone) {
    prefs.launchAtLogin = 0;
    prefs.on = 0;
    openWithAgent();
    const PrefsRecord start = prefs;
    EXPECT_FALSE(find("scanningResetBtn")->isEnabled());
    for (const char* control : {"lineScanTimePageIncBtn", "canScanMenuBarCheck", "scanModeRadios1",
                                "lineThicknessIncBtn", "playClickSoundsCheck"}) {
        click(control);
        EXPECT_EQ(agentLog_.nextName(), "SAPr");
    }

    const PrefsRecord changed = prefs;
    EXPECT_EQ(find<QAbstractButton>("generalResetBtn")->text(), "Reset 1 setting");
    EXPECT_EQ(find<QAbstractButton>("allResetBtn")->text(), "Reset everything: 5 settings");

    press("scanningResetBtn");
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed);
    EXPECT_EQ(told(), "Scan the menu bar too: off back to on, and 1 more setting.");
    EXPECT_EQ(double{prefs.lineScanTime}, 10);
    EXPECT_EQ(prefs.scanMode, 1);
    EXPECT_FALSE(find("scanningResetBtn")->isEnabled());
    pressInStrip();
    EXPECT_TRUE(differences(prefs, changed).none());
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed);

    press("allResetBtn");
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed | kChangeTriggers | kChangeScanLineLook |
                                        kChangeGuideLineLook | kChangeSounds);
    EXPECT_TRUE(differences(prefs, start).none());
    EXPECT_EQ(prefs.launchAtLogin, 0);
    theWrangler->undo(nullptr);
    EXPECT_TRUE(differences(prefs, changed).none());
    EXPECT_EQ(agentLog_.nextName(), "SAPr");

    press("lineScanTimePutBack"); // soon after: it joins no change before
    theWrangler->undo(nullptr);
    EXPECT_TRUE(differences(prefs, changed).none());
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(kChangeScanSpeed, kChangeScanSpeed));
}

using NamesTest = PaneTest;

TEST_F(NamesTest, WhatLiesBehindANameDoesntCount) {
    std::strcpy(prefs.pointerImageName, "Ring+20x20");
    openWithAgent();
    std::strcpy(prefs.pointerImageName, PrefsRecord().pointerImageName); // "default", then "20"
    theWrangler->changed(kChangePointer);
    EXPECT_EQ(agentLog_.nextMask(), kChangePointer);
    EXPECT_EQ(find<QAbstractButton>("lookResetBtn")->text(), "Nothing to reset");
    EXPECT_FALSE(find("pointerRowPutBackBar")->isVisible());
    theWrangler->adopt(SettingSet().set(), PrefsRecord());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty()) << "an equal name isn't sent";
}

} // namespace
