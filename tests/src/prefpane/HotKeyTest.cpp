#include "platform/AppKit/ViewWidget.h"
#include "src/prefpane/HotKeyView.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "tests/support/PaneFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <linux/input-event-codes.h>

namespace {

/// A key as the display's server tells of it.
struct Key {
    int code; ///< the kernel's
    int key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    quint32 nativeModifiers = 0;
};

constexpr Key kX{KEY_X, Qt::Key_X};
constexpr Key kSpace{KEY_SPACE, Qt::Key_Space};
constexpr quint32 kCapsLockOn = 2;

/// The hot keys' tab, operated as its user does.
class HotKeyTest : public PaneTest {
protected:
    HotKeyView& view(const char* name) {
        return dynamic_cast<HotKeyView&>(*find<ViewWidget>(name)->view());
    }

    bool isCapturing(const char* name) { return view(name).isFirstResponder(); }

    void send(QEvent::Type type, const Key& key, bool isRepeat) {
        QWidget* receiver = window()->focusWidget() ? window()->focusWidget() : window();
        QKeyEvent event(type, key.key, key.modifiers, static_cast<quint32>(key.code + 8), 0,
                        key.nativeModifiers, {}, isRepeat);
        QApplication::sendEvent(receiver, &event);
    }

    void down(const Key& key, bool isRepeat = false) {
        send(QEvent::ShortcutOverride, key, isRepeat);
        send(QEvent::KeyPress, key, isRepeat);
    }

    void up(const Key& key) { send(QEvent::KeyRelease, key, false); }

    void press(const Key& key) {
        down(key);
        up(key);
    }

    std::string shown(const char* name) {
        auto* interface = QAccessible::queryAccessibleInterface(find(name));
        return interface->text(QAccessible::Value).toStdString();
    }

    /// Chooses in the menu beside a hot key.
    void choose(const char* button, const char* title) {
        auto* menu = openMenu(button);
        const auto items = menu->findItems(QString::fromLatin1(title), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        menu->setCurrentItem(items.front());
        QTest::keyClick(menu, Qt::Key_Return);
        window()->activateWindow(); // which a display's server does by itself
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    }

    QListWidget* openMenu(const char* button) {
        QTest::keyClick(find(button), Qt::Key_Space);
        return find(button)->findChild<QListWidget*>();
    }

    /// The next change, which must be of hot keys, and leave the slot like this.
    void expectChange(int slot, UInt32 modifiers, UInt32 keyCode) {
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), kChangeHotKeys);
        const std::size_t at =
            offsetof(PrefsRecord, hotKeys) + sizeof(HotKey) * static_cast<std::size_t>(slot);
        EXPECT_EQ(recordField<UInt32>(event, at), keyCode);
        EXPECT_EQ(recordField<UInt32>(event, at + 4), modifiers);
    }

    /// Which of the two groups is attached; both or none is a fault.
    bool showsEditingGroup() {
        const bool isIdle = find("notEditingKeyPrompt")->isVisible();
        for (const char* name : {"editingKeyPrompt1", "cancelEditBtn", "defaultKeyBtn", "noKeyBtn"})
            EXPECT_NE(find(name)->isVisible(), isIdle) << name;
        return !isIdle;
    }
};

constexpr const char* kViews[] = {"masterOnOffKey", "scanKey", "cancelScanKey",
                                  "showPreferencesKey", "scanKey2"};

TEST_F(HotKeyTest, ShowsTheDefaultsAndTheIdlePrompt) {
    openWithAgent();
    const char* const names[] = {"control+shift+X", "command+enter", "esc",
                                 "control+shift+option+X", "option+enter"};
    for (int i = 0; i < kNumHotKeys; ++i)
        EXPECT_EQ(shown(kViews[i]), names[i]);
    EXPECT_FALSE(showsEditingGroup());
}

TEST_F(HotKeyTest, CapturesWhateverIsPressed) {
    const struct {
        Key key;
        UInt32 modifiers;
        UInt32 keyCode;
        const char* shown;
    } cases[] = {
        {{KEY_Q, Qt::Key_Q, Qt::MetaModifier}, 0x0100, 0x0C, "command+Q"},
        {{KEY_Q, Qt::Key_Q, Qt::ControlModifier}, 0x1000, 0x0C, "control+Q"},
        {{KEY_S, Qt::Key_S, Qt::AltModifier}, 0x0800, 0x01, "option+S"},
        {{KEY_E, Qt::Key_E, Qt::GroupSwitchModifier}, 0x0800, 0x0E, "option+E"},
        {{KEY_A, Qt::Key_A, Qt::ShiftModifier, kCapsLockOn}, 0x0200, 0x00, "shift+A"},
        {{KEY_A, Qt::Key_A, Qt::NoModifier, kCapsLockOn}, 0, 0x00, "A"},
        {{KEY_ESC, Qt::Key_Escape}, 0, 0x35, "esc"},
        {{KEY_TAB, Qt::Key_Tab}, 0, 0x30, "tab"},
        {{KEY_TAB, Qt::Key_Backtab, Qt::ShiftModifier}, 0x0200, 0x30, "shift+tab"},
        {{KEY_ENTER, Qt::Key_Return}, 0, 0x24, "return"},
        {{KEY_Q, Qt::Key_A}, 0, 0x0C, "Q"}, // as a French keyboard types it
        {{KEY_102ND, Qt::Key_Less}, 0, 0x0A, ""},
        {{KEY_KP5, Qt::Key_5, Qt::KeypadModifier}, 0, 0x57, " keypad 5"},
    };

    openWithAgent();
    for (const auto& test : cases) {
        SCOPED_TRACE(test.shown);
        click("scanKey");
        EXPECT_TRUE(isCapturing("scanKey") && showsEditingGroup());
        press(test.key);
        expectChange(1, test.modifiers, test.keyCode);
        EXPECT_EQ(shown("scanKey"), test.shown);
        EXPECT_FALSE(isCapturing("scanKey") || showsEditingGroup());
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, ModifiersAloneAndKeysWithoutACodeEndNothing) {
    openWithAgent();
    click("scanKey2");
    for (const Key& key : {Key{KEY_LEFTSHIFT, Qt::Key_Shift}, Key{KEY_RIGHTMETA, Qt::Key_Meta},
                           Key{KEY_RIGHTALT, Qt::Key_AltGr}, Key{KEY_CAPSLOCK, Qt::Key_CapsLock},
                           Key{KEY_F13, Qt::Key_Meta}, // made a modifier by the layout
                           Key{KEY_CALC, Qt::Key_Calculator}})
        press(key);
    EXPECT_TRUE(isCapturing("scanKey2"));
    press(kX);
    expectChange(4, 0, 0x07);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, AHeldKeyCountsOnceAndGoesNoFurther) {
    openWithAgent();
    const Key kReturn{KEY_ENTER, Qt::Key_Return};
    choose("scanKeyBtn", "Press new keys");
    for (int i = 0; i < 3; ++i)
        down(kReturn, true); // which chose in the menu
    up(kReturn);
    EXPECT_TRUE(isCapturing("scanKey"));

    auto* button = find<QPushButton>("scanKeyBtn");
    auto* menu = button->findChild<QListWidget*>();
    down(kSpace);
    EXPECT_TRUE(button->hasFocus()) << "it started the capture and gets the keyboard back";
    for (int i = 0; i < 3; ++i)
        down(kSpace, true);
    up(kSpace);
    EXPECT_FALSE(menu->isVisible());
    expectChange(1, 0, 0x31);
    press(kSpace);
    EXPECT_TRUE(menu->isVisible()) << "pressed anew it acts as ever";
    menu->close();
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, NoneAndDefaultOfTheMenuAndOfACapture) {
    openWithAgent();

    const struct {
        std::function<void()> act;
        UInt32 keyCode;
        const char* shown;
    } cases[] = {
        {[&] { choose("scanKeyBtn", "None"); }, 0x8000004C, "-none-"},
        {[&] { choose("scanKeyBtn", "Default"); }, 0x4C, "command+enter"},
        {[&] { click("scanKey"), click("noKeyBtn"); }, 0x8000004C, "-none-"},
        {[&] { click("scanKey"), click("noKeyBtn"); }, 0x8000004C, "-none-"},
        {[&] { click("scanKey"), click("defaultKeyBtn"); }, 0x4C, "command+enter"},
    };

    for (const auto& test : cases) {
        test.act();
        expectChange(1, 0x0100, test.keyCode);
        EXPECT_EQ(shown("scanKey"), test.shown);
        EXPECT_FALSE(showsEditingGroup());
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, WithoutACaptureTheButtonsDoNothing) {
    openWithAgent();
    for (const auto action :
         {&PreferenceWrangler::setHotKeyToNone, &PreferenceWrangler::setHotKeyToDefault,
          &PreferenceWrangler::cancelHotKeyEdit})
        (theWrangler->*action)(nullptr);
    view("scanKey").cancelEditing();
    EXPECT_EQ(prefs.hotKeys[1].keyCode, 0x4C);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, CancellingAndMovingAwayStoreNothing) {
    openWithAgent();
    click("scanKey");
    click("cancelEditBtn");
    EXPECT_FALSE(isCapturing("scanKey") || showsEditingGroup());

    click("scanKey");
    click("cancelScanKey");
    EXPECT_FALSE(isCapturing("scanKey"));
    EXPECT_TRUE(isCapturing("cancelScanKey") && showsEditingGroup());
    find("masterOnOffRadios1")->setFocus();
    EXPECT_FALSE(showsEditingGroup());

    click("cancelScanKey");
    find("volumeIncBtn"); // on another tab
    EXPECT_FALSE(isCapturing("cancelScanKey"));
    EXPECT_FALSE(find("scanKey") && showsEditingGroup());

    click("scanKey");
    pane_->willSelect(); // the settings are loaded anew
    EXPECT_EQ(agentLog_.nextName(), "PPop");
    EXPECT_FALSE(showsEditingGroup());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, ACapturePausesWhileAnotherWindowIsActive) {
    openWithAgent();
    click("scanKey");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(shown("scanKey"), "command+enter");
    EXPECT_FALSE(isCapturing("scanKey"));
    QTest::keyClick(&other, Qt::Key_X);

    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    EXPECT_TRUE(isCapturing("scanKey") && showsEditingGroup());
    press(kX);
    expectChange(1, 0, 0x07);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, AViewWithoutASlotStoresNothing) {
    openWithAgent();
    HotKeyView& blank = view("scanKey");
    blank.setIndex(-1);
    click("scanKey");
    press(kX);
    EXPECT_TRUE(isCapturing("scanKey"));
    click("noKeyBtn");
    EXPECT_FALSE(isCapturing("scanKey"));
    EXPECT_EQ(shown("scanKey"), "");
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(HotKeyTest, NobodyTabsIntoACapture) {
    openWithAgent();
    find("scanKeyBtn")->setFocus();
    std::set<QWidget*> reached;
    while (reached.insert(window()->focusWidget()).second) {
        EXPECT_EQ(dynamic_cast<ViewWidget*>(window()->focusWidget()), nullptr);
        QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
    }
    for (const char* name : kViews)
        EXPECT_TRUE(reached.contains(find((std::string(name) + "Btn").c_str()))) << name;
}

TEST_F(HotKeyTest, NotesTheSameKeysInTwoSlots) {
    openWithAgent();
    click("cancelScanKey");
    press({KEY_KPENTER, Qt::Key_Enter, Qt::AltModifier});
    const auto note = [&](const char* name) { return find<QLabel>(name)->text().toStdString(); };
    EXPECT_EQ(note("cancelScanKeyNote"), "The same keys as “Scan, second key”");
    EXPECT_EQ(note("scanKey2Note"), "The same keys as “Cancel the scan”");
    EXPECT_EQ(note("scanKeyNote"), "");
    choose("scanKey2Btn", "None");
    choose("cancelScanKeyBtn", "None"); // the same keys, but in no use
    EXPECT_EQ(note("cancelScanKeyNote") + note("scanKey2Note"), "");
}

TEST_F(HotKeyTest, TellsAScreenReaderWhatItIsAndWhatItDoes) {
    openWithAgent();
    auto* interface = QAccessible::queryAccessibleInterface(find("scanKey"));
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Scan"));
    EXPECT_TRUE(interface->state().readOnly);
    auto* text = interface->textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->text(0, text->characterCount()), QStringLiteral("command+enter"));
    click("scanKey");
    EXPECT_EQ(text->characterCount(), 0) << "no modifier is held";
    EXPECT_TRUE(interface->text(QAccessible::Description).startsWith(QLatin1String("Capturing")));
    EXPECT_TRUE(interface->state().focused);
    press(kX);
    EXPECT_FALSE(interface->text(QAccessible::Description).startsWith(QLatin1String("Capturing")));
    EXPECT_EQ(find("scanKeyBtn")->accessibleDescription(), QStringLiteral("Now X. "));
}

TEST_F(HotKeyTest, DrawsItsTextOnWhiteAndARingWhileItCaptures) {
    openWithAgent();
    auto* widget = find("scanKey");
    const auto picture = [&] { return widget->grab().toImage(); };
    const QColor ground = widget->palette().color(QPalette::Base);
    const QColor ring = widget->palette().color(QPalette::Highlight);
    ASSERT_EQ(ground, QColor(Qt::white));

    const QImage idle = picture();
    EXPECT_EQ(idle.pixelColor(0, 0), ground);
    prefs.hotKeys[1].modifiers = 0xFFFFFFFF; // not to be shown
    QImage blank(idle.size(), idle.format());
    blank.fill(ground);
    EXPECT_EQ(picture(), blank);
    EXPECT_NE(idle, blank);

    click("scanKey");
    const QImage capturing = picture();
    for (const QPoint& edge : {QPoint(0, 9), QPoint(9, 0), capturing.rect().bottomRight()})
        EXPECT_EQ(capturing.pixelColor(edge), ring);
    EXPECT_EQ(capturing.pixelColor(9, 9), ground);
}

} // namespace
