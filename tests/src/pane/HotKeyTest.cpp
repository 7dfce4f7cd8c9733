// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PopUpButtonWidget.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "src/pane/hotkeys/HotKeyView.h"
#include "tests/support/PaneFixture.h"

#include <linux/input-event-codes.h>

namespace {

/// A key as the display server reports it.
struct Key {
    int code; ///< the kernel's
    int key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    quint32 nativeModifiers = 0;
    bool repeats = false;
};

constexpr quint32 kCapsLockOn = 2;

/// The section with the hot keys, used like a user.
class HotKeyTest : public PaneTest {
protected:
    HotKeyView& view(const char* name) {
        return dynamic_cast<HotKeyView&>(*find<ViewWidget>(name)->view());
    }

    bool isCapturing(const char* name) { return view(name).isFirstResponder(); }

    void press(const Key& key) {
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QWidget* receiver = window()->focusWidget() ? window()->focusWidget() : window();
            QKeyEvent event(type, key.key, key.modifiers, static_cast<quint32>(key.code + 8), 0,
                            key.nativeModifiers, {}, key.repeats);
            QApplication::sendEvent(receiver, &event);
        }
    }

    std::string shown(const char* name) {
        auto* interface = QAccessible::queryAccessibleInterface(find(name));
        return interface->text(QAccessible::Value).toStdString();
    }

    /// Expects a change of hot keys with this value for “Scan”.
    void expectChange(UInt32 modifiers, UInt32 keyCode) {
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), kChangeHotKeys);
        constexpr std::size_t kPlace = offsetof(PrefsRecord, hotKeys) + sizeof(HotKey);
        EXPECT_EQ(recordField<UInt32>(event, kPlace), keyCode);
        EXPECT_EQ(recordField<UInt32>(event, kPlace + 4), modifiers);
    }

    PopUpButtonWidget& popUp(const char* name) {
        return static_cast<PopUpButtonWidget&>(*find<QPushButton>(name));
    }

    /// Which of the two groups is attached. Exactly one must be.
    bool showsEditingGroup() {
        EXPECT_NE(find("cancelEditBtn")->isVisible(), find("notEditingKeyPrompt")->isVisible());
        return find("cancelEditBtn")->isVisible();
    }
};

TEST_F(HotKeyTest, CapturesWhateverIsPressed) {
    const struct {
        Key key;
        UInt32 modifiers, keyCode;
        const char* shown;
    } cases[] = {
        {{KEY_Q, Qt::Key_Q, Qt::MetaModifier}, 0x0100, 0x0C, "command+Q"},
        {{KEY_E, Qt::Key_E, Qt::GroupSwitchModifier}, 0x0800, 0x0E, "option+E"},
        {{KEY_A, Qt::Key_A, Qt::ShiftModifier, kCapsLockOn}, 0x0200, 0x00, "shift+A"},
        {{KEY_ESC, Qt::Key_Escape}, 0, 0x35, "esc"},
        {{KEY_Q, Qt::Key_A}, 0, 0x0C, "Q"}, // as a French keyboard types it
        {{KEY_102ND, Qt::Key_Less}, 0, 0x0A, ""},
        {{KEY_KP5, Qt::Key_5, Qt::KeypadModifier}, 0, 0x57, " keypad 5"},
    };

    openWithAgent();
    for (const auto& test : cases) {
        SCOPED_TRACE(test.shown);
        click("scanKey");
        for (const Key& key : {Key{KEY_F13, Qt::Key_Meta},
                               {KEY_CAPSLOCK},                   // modifiers by layout, by place
                               {KEY_CALC, Qt::Key_Calculator},   // one without a code
                               {KEY_Z, Qt::Key_Z, {}, 0, true}}) // held since before
            press(key);
        EXPECT_TRUE(isCapturing("scanKey"));
        press(test.key);
        expectChange(test.modifiers, test.keyCode);
        EXPECT_EQ(shown("scanKey"), test.shown);
        EXPECT_FALSE(isCapturing("scanKey") || showsEditingGroup());
    }
}

TEST_F(HotKeyTest, HotKeysThatTheAgentCantTellApartAreNoted) {
    prefs.hotKeys[0] = {0x69, 0x0100};
    prefs.hotKeys[1] = {0x69, 0xFFFFE4FF};
    prefs.hotKeys[2] = {0x69, 0};
    prefs.hotKeys[3].keyCode = prefs.hotKeys[4].keyCode = -1; // none, twice
    open();
    for (const auto& [name, note] : {std::pair("scanKey", "The same keys as “Cancel the scan”"),
                                     {"cancelScanKey", "The same keys as “Scan”"},
                                     {"masterOnOffKey", // the same key, other modifiers
                                      "Super+F13 or Print Screen on your keyboard"},
                                     {"showPreferencesKey", ""},
                                     {"scanKey2", ""}}) {
        const std::string control = name;
        const std::string text = find<QLabel>((control + "Note").c_str())->text().toStdString();
        EXPECT_THAT(text, testing::HasSubstr(note)) << name;
        EXPECT_EQ(text.empty(), *note == '\0') << name;
        EXPECT_EQ(text.find("⚠") == text.npos, std::string(note).find("same") == text.npos) << name;
        EXPECT_THAT(find((control + "Btn").c_str())->accessibleDescription().toStdString(),
                    testing::HasSubstr(note));
    }
}

TEST_F(HotKeyTest, MovingAwayStoresNothing) {
    openWithAgent();
    click("cancelScanKey");
    EXPECT_TRUE(isCapturing("cancelScanKey") && showsEditingGroup());
    find("volumeIncBtn")->setFocus(); // on another tab
    EXPECT_FALSE(isCapturing("cancelScanKey") || showsEditingGroup());
    click("scanKey");
    pane_->willSelect(); // loads anew
    EXPECT_FALSE(isCapturing("scanKey") || showsEditingGroup());
    EXPECT_TRUE(agentLog_.nextHold());
    EXPECT_FALSE(agentLog_.nextHold()) << "its grabs are the agent's again";
    EXPECT_TRUE(agentLog_.nextHold());
    EXPECT_EQ(agentLog_.nextOfAll()["event"], QStringLiteral("PPop"));
    EXPECT_TRUE(agentLog_.nextHold()) << "said again with an opening";
    EXPECT_FALSE(agentLog_.nextHold());
}

TEST_F(HotKeyTest, AHotKeyIsBuiltWithoutAKeyAndATwiceUsedOneIsUsedOnce) {
    openWithAgent();
    const auto choose = [this](const char* menu, const char* title) {
        popUp(menu).onChosen(title);
    };
    choose("scanKeyBtn", "Choose keys…");
    EXPECT_TRUE(find("builderCommand")->hasFocus());
    std::string keys;
    for (const PopUpEntry& entry : popUp("builderKey").entries())
        keys += entry.title.toStdString() + ' ';
    for (const char* run : {"A B C", "J K L", "Z 0 1", "F1 F2", "F9 F10 F11",
                            "Space Enter Backspace", "Num Lock keypad Enter keypad 0"})
        EXPECT_THAT(keys, testing::HasSubstr(run)) << "in the order in which one looks for a key";
    EXPECT_EQ(keys.find("enter"), keys.npos) << "Apple's code for Enter, which no key sends";
    click("builderControl"); // besides command, which the hot key has already
    choose("builderKey", "Esc");
    expectChange(0x1100, 0x35);
    click("builderCommand"), click("builderControl");
    choose("builderKey", "Esc"); // as “Cancel scan”
    expectChange(0, 0x35);
    EXPECT_TRUE(find<QLabel>("cancelScanKeyNote")->text().contains("“Scan”"));
    choose("scanKeyBtn", "Undo the change here");
    expectChange(0x1100, 0x35);
    choose("builderKey", "Esc");
    expectChange(0, 0x35);
    choose("masterOnOffKeyBtn", "Choose keys…");
    click("builderControl"), click("builderShift");
    choose("builderKey", "Esc");
    expectChange(0, 0x35);
    choose("scanKeyBtn", "Use these keys only here");
    EXPECT_EQ(shown("cancelScanKey") + shown("masterOnOffKey"), "-none--none-");
    EXPECT_EQ(shown("scanKey"), "esc");
    EXPECT_FALSE(popUp("scanKeyBtn").entries().back().enabled) << "there is nothing to settle";
    expectChange(0, 0x35);
}

TEST_F(HotKeyTest, WhateverLoadsAHotKeyEndsTheCaptureAndNothingElseTouchesIt) {
    openWithAgent();
    const auto adopt = [](auto change) {
        PrefsRecord record = prefs;
        change(record);
        theWrangler->adopt(differences(prefs, record), record);
    };
    for (const bool isActive : {true, false}) {
        click("scanKey");
        QWidget other;
        if (!isActive) {
            other.show();
            other.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        }
        adopt([](auto& record) { record.soundLevel ^= 1; });
        EXPECT_EQ(agentLog_.nextMask(), kChangeSounds);
        EXPECT_TRUE(showsEditingGroup());
        adopt([](auto& record) { record.hotKeys[2].keyCode ^= 1; });
        EXPECT_EQ(agentLog_.nextMask(), kChangeHotKeys);
        EXPECT_FALSE(isCapturing("scanKey") || showsEditingGroup());
        EXPECT_NE(window()->focusWidget(), find("scanKey"));
        press({KEY_Q, Qt::Key_Q}); // is nobody's
        other.close();
        window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    }
}

TEST_F(HotKeyTest, ACapturesTimeBeginsAgainWithItsWindow) {
    openWithAgent();
    const auto* prompt = find<QLabel>("editingKeyPrompt1");
    const auto says = [&](int seconds) {
        return prompt->text().endsWith(QStringLiteral("Seconds left: %1.").arg(seconds));
    };
    click("scanKey");
    EXPECT_TRUE(QTest::qWaitFor([&] { return says(29); }));
    EXPECT_TRUE(agentLog_.nextHold());
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return says(30); }));
    EXPECT_FALSE(agentLog_.nextHold()) << "others have their keys meanwhile";
    QTest::qWait(1500);
    EXPECT_TRUE(says(30));
    other.close();
    window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return says(28); }));
    EXPECT_TRUE(agentLog_.nextHold());
    click("cancelEditBtn");
}

TEST_F(HotKeyTest, ACaptureEndsWithItsWindow) {
    open();
    const auto filters = qApp->children().size();
    click("scanKey");
    EXPECT_GT(qApp->children().size(), filters);
    putAway();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(qApp->children().size(), filters) << "keys are taken no longer";
}

} // namespace
