// SPDX-License-Identifier: MIT
#include "platform/AppKit/UserMessages.h"
#include "src/pane/PreferenceWrangler.h"
#include "tests/support/NoticeMuting.h"
#include "tests/support/PaneFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QLineEdit>

#include <cstring>

namespace {

class UndoTest : public PaneTest {
protected:
    void keys(const char* name, std::initializer_list<Qt::Key> pressed) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(find(name), key);
    }

    /// By the button's accessible action and by Ctrl+Z in turn.
    void again(const char* name, Qt::KeyboardModifiers modifiers) {
        if (byKey_[modifiers & Qt::ShiftModifier ? 0 : 1] ^= true)
            return QTest::keyClick(window(), Qt::Key_Z, modifiers);
        auto* button = window()->findChild<QWidget*>(QLatin1String(name));
        auto* actions = QAccessible::queryAccessibleInterface(button)->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
    }

    void hold(const char* name, bool byKey = false) {
        auto* button = find(name);
        byKey ? QTest::keyPress(button, Qt::Key_Space) : QTest::mousePress(button, Qt::LeftButton);
        QTest::qWait(1400); // one, and after a second another
        byKey ? QTest::keyRelease(button, Qt::Key_Space)
              : QTest::mouseRelease(button, Qt::LeftButton);
    }

    void type(const char* name, const char* value) {
        auto* field = find<QLineEdit>(name);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(value));
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier); // of what is typed
        QTest::keyClicks(field, QLatin1String(value));
        QTest::keyClick(field, Qt::Key_Return);
        for (const auto shift : {Qt::NoModifier, Qt::ShiftModifier}) { // of the window's
            field->setFocus();
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | shift);
        }
    }

    void dragColours() {
        click("lineColor");
        auto* page = find("lineColor")->findChild<QDialog*>();
        for (auto* button : page->findChild<QDialogButtonBox*>()->buttons())
            if (button->text().startsWith(QLatin1String("&More")))
                button->click();
        auto* dialog = page->findChild<QColorDialog*>();
        for (const QColor& colour : {QColor(90, 0, 0), QColor(80, 0, 0), QColor(0, 0, 255)})
            dialog->setCurrentColor(colour);
        dialog->accept();
    }

    void captureKey() {
        click("cancelScanKey");
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_F5, {}, 63 + 8, 0, 0);
            QWidget* focus = window()->focusWidget();
            QApplication::sendEvent(focus ? focus : window(), &event);
        }
    }

    void swapButtons() {
        keys("paletteView", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Space});
        click("swapWithBtn");
        keys("paletteView", {Qt::Key_Right, Qt::Key_Space});
    }

    bool byKey_[2] = {};
};

TEST_F(UndoTest, EachKindOfChangeIsOneStepThatIsSaidAndShown) {
    const struct {
        std::function<void()> change;
        std::string words; ///< of the undo
        const char* focus; ///< where the keyboard is then
    } cases[] = {
        {[&] {
             for (int i = 0; i < 3; ++i)
                 click("lineScanTimeIncBtn");
         },
         "Line crosses the screen in: 11.5 back to 10.0 sec.", "lineScanTimeSlider"},
        {[&] {
             keys("volumeSlider", {Qt::Key_Right, Qt::Key_Right});
         },
         "Volume: 52 back to 50.", "volumeSlider"},
        {[&] { type("lineThicknessLabel", "9"); }, "Line thickness: 9 back to 7 points.",
         "lineThicknessDecBtn"},
        {[&] { click("playDragPrompts"); }, "Prompts while dragging: off back to on.",
         "playDragPrompts"},
        {[&] { click("scanModeRadios2"); },
         "Way of scanning: “Each press moves one step” back to “Press to start, press to choose”.",
         "scanModeRadios0"},
        {[&] {
             keys("scanAreaGrid", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Space});
         },
         "My own area: 400 × 800 at 0, 0 back to 100 × 80 at 0, 0.", "scanAreaBtn"},
        {[&] { hold("scanAreaWidthIncBtn"); },
         "My own area: 120 × 80 at 0, 0 back to 100 × 80 at 0, 0.", "scanAreaBtn"},
        {[&] { dragColours(); }, "Line colour: Blue (#0000ff) back to Red (#640000).", "lineColor"},
        {[&] {
             keys("pointerGrid", {Qt::Key_Home, Qt::Key_Space});
         },
         "” back to “default”.", "previousPointerBtn"},
        {[&] { captureKey(); }, "Cancel the scan (hot key): F5 back to esc.", "cancelScanKeyBtn"},
        {[&] { swapButtons(); },
         "Palette button 2: “Drag” back to “Double”; Palette button 3: “Double” back to “Drag”.",
         "paletteView"},
        {[&] {
             keys("paletteView", {Qt::Key_Home, Qt::Key_Space});
             click("removeButtonBtn");
         },
         "Palette buttons: “Double, Drag, Type, Scroll” back to “Click, Double, Drag, Type, "
         "Scroll”.",
         "paletteView"},
        {[&] { click("buttonContentNameCheck"); }, "Show the name: off back to on.",
         "buttonContentNameCheck"},
        {[&] { hold("buttonHeightIncBtn", true); },
         "Size of the buttons: 40 × 42 back to 40 × 40 points.", "buttonHeightDecBtn"},
        {[&] { click("launchAtLogin"); }, "Start Korvex when you log in: off back to on.",
         "launchAtLogin"},
    };

    const std::filesystem::path file =
        std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/org.korvex.Agent.plist";
    const std::string stored =
        dictionaryFile("<key>scanner.scanArea</key><string>origin(0,0); size(100,80)</string>"
                       "<key>scanner.useScanArea</key><true/>");
    writeFile(file, stored);
    muteNotice();
    openWithAgent();
    for (const auto& [change, words, focus] : cases) {
        SCOPED_TRACE(words);
        const PrefsRecord before = prefs;
        change();
        const PrefsRecord after = prefs;
        EXPECT_TRUE(differences(before, after).any());
        find(std::strcmp(focus, "lineScanTimeSlider") != 0 ? "lineScanTimeSlider"
                                                           : "playClickSoundsCheck")
            ->setFocus();
        window()->activateWindow(); // again, after a dialogue
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
        QTest::keyClick(window(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_THAT(currentMessage() ? currentMessage()->message.text : "",
                    testing::EndsWith(words));
        EXPECT_EQ(window()->focusWidget()->objectName().toStdString(), focus);
        EXPECT_TRUE(window()->focusWidget()->isVisible());
        EXPECT_TRUE(differences(before, prefs).none());
        again("redoBtn", Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(differences(after, prefs).none());
        again("undoBtn", Qt::ControlModifier);
        QTRY_VERIFY(differences(before, prefs).none());
        EXPECT_FALSE(find("undoBtn")->isEnabled());
    }
    putAway();
    EXPECT_EQ(readFile(file), stored);
}

TEST_F(UndoTest, WhatACrashedVisitLeftIsOneStep) {
    const fs::path state = fs::path(std::getenv("XDG_STATE_HOME")) / "korvex";
    fs::create_directories(state);
    writeFile(state / "unsaved.1.2",
              dictionaryFile("<key>soundLevel</key><string>0x46</string>"
                             "<key>scanner.minTriggerDuration</key><string>1.5</string>"));
    const PrefsRecord before = prefs;
    openWithAgent();
    EXPECT_EQ(agentLog_.nextMask(), kChangeSounds | kChangeTriggers);
    EXPECT_EQ(prefs.soundLevel, 70U);
    EXPECT_EQ(find<QLineEdit>("minTriggerDurationLabel")->text(), "  1.5 sec");
    EXPECT_THAT(told(), testing::HasSubstr("are here again"));
    find<QPushButton>("undoBtn")->click();
    EXPECT_TRUE(differences(before, prefs).none());
    EXPECT_FALSE(find("undoBtn")->isEnabled());
    EXPECT_EQ(agentLog_.nextMask(), kChangeSounds | kChangeTriggers);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fs::is_empty(state); })) << "nothing is unsaved";
}

} // namespace
