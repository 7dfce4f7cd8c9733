#include "platform/AppKit/NSMenuItem.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/ViewWidget.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "tests/support/PaneFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>

#include <algorithm>
#include <array>

namespace {

using Slots = std::array<int, kNumPaletteSlots>;
constexpr Slots kDefaults = {20, 21, 22, 1, 2, 0, 0, 0, 0};
constexpr Slots kFull = {20, 21, 22, 1, 2, 3, 4, 5, 6};

/// The palette's editor in the open pane, and the real agent that hears of its edits.
class PaletteEditingTest : public PaneTest {
protected:
    PaletteView* view() { return dynamic_cast<PaletteView*>(viewWidget()->view()); }

    /// In sight and drawn: before that its buttons have no place.
    ViewWidget* viewWidget() {
        auto* widget = static_cast<ViewWidget*>(find("paletteView"));
        widget->repaint();
        return widget;
    }

    /// Clicks the slot, or beside all of them.
    void clickSlot(SInt32 slot) {
        const NSRect frame = view()->boundsOfBtn(slot);
        const QPoint beside(viewWidget()->width() - 1, viewWidget()->height() / 2);
        QTest::mouseClick(viewWidget(), Qt::LeftButton, {},
                          slot == kNoButton
                              ? beside
                              : QPointF(frame.x + frame.width / 2, frame.height / 2).toPoint());
    }

    void setSlots(const Slots& slots) {
        std::copy(slots.begin(), slots.end(), prefs.buttonActions);
        theWrangler->resetPaletteControls();
    }

    static Slots currentSlots() {
        Slots slots;
        std::copy(std::begin(prefs.buttonActions), std::end(prefs.buttonActions), slots.begin());
        return slots;
    }

    static Slots slotsOf(const QJsonObject& event) {
        Slots slots;
        for (std::size_t i = 0; i < slots.size(); ++i)
            slots[i] = recordField<UInt8>(event, offsetof(PrefsRecord, buttonActions) + i);
        return slots;
    }

    std::string prompt() { return find<QLabel>("palettePrompt")->text().toStdString(); }

    bool isEnabled(const char* name) { return find(name)->isEnabled(); }
};

TEST_F(PaletteEditingTest, EachEditMovesTheSlotsAndReachesTheAgent) {
    enum Edit { kAdd, kSet, kRemove, kReset, kSwap };

    const struct {
        const char* what;
        Slots before;
        SInt32 selected;
        Edit edit;
        int argument; ///< the menu item's tag, or the slot clicked after Swap
        Slots after;  ///< the same as before: nothing is sent
    } cases[] = {
        {"a new button goes after the last",
         kDefaults,
         kNoButton,
         kAdd,
         7,
         {20, 21, 22, 1, 2, 7, 0, 0, 0}},
        {"or before the selected one", kDefaults, 1, kAdd, 7, {20, 7, 21, 22, 1, 2, 0, 0, 0}},
        {"an occupied last slot costs the next gap",
         {20, 21, 0, 1, 2, 3, 4, 5, 6},
         0,
         kAdd,
         7,
         {7, 20, 21, 1, 2, 3, 4, 5, 6}},
        {"an empty one keeps all gaps",
         {20, 21, 0, 1, 0, 0, 0, 0, 0},
         0,
         kAdd,
         7,
         {7, 20, 21, 0, 1, 0, 0, 0, 0}},
        {"no room after the selection: the last run of gaps",
         {20, 0, 0, 1, 2, 3, 4, 5, 6},
         8,
         kAdd,
         7,
         {20, 7, 0, 1, 2, 3, 4, 5, 6}},
        {"an empty palette", {}, kNoButton, kAdd, 7, {7}},
        {"an empty slot can be added", kDefaults, 0, kAdd, 0, {0, 20, 21, 22, 1, 2, 0, 0, 0}},
        {"no room at all", kFull, kNoButton, kAdd, 7, kFull},
        {"no such action", kDefaults, kNoButton, kAdd, 40, kDefaults},
        {"set", kDefaults, 2, kSet, 7, {20, 21, 7, 1, 2, 0, 0, 0, 0}},
        {"set an empty slot", kDefaults, 8, kSet, 7, {20, 21, 22, 1, 2, 0, 0, 0, 7}},
        {"set the same", kDefaults, 2, kSet, 22, kDefaults},
        {"set no such action", kDefaults, 2, kSet, 40, kDefaults},
        {"set without a selection", kDefaults, kNoButton, kSet, 7, kDefaults},
        {"remove", kDefaults, 3, kRemove, 0, {20, 21, 22, 2, 0, 0, 0, 0, 0}},
        {"remove the last slot", kFull, 8, kRemove, 0, {20, 21, 22, 1, 2, 3, 4, 5, 0}},
        {"remove a gap", {20, 0, 21}, 1, kRemove, 0, {20, 21}},
        {"remove without a selection", kDefaults, kNoButton, kRemove, 0, kDefaults},
        {"swap", kDefaults, 0, kSwap, 2, {22, 21, 20, 1, 2, 0, 0, 0, 0}},
        {"swap with a gap", kDefaults, 0, kSwap, 8, {0, 21, 22, 1, 2, 0, 0, 0, 20}},
        {"swap cancelled on the same button", kDefaults, 0, kSwap, 0, kDefaults},
        {"swap cancelled beside the buttons", kDefaults, 0, kSwap, kNoButton, kDefaults},
        {"reset", kFull, 4, kReset, 0, kDefaults},
    };

    openWithAgent();
    NSMenuItem item("any");
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        setSlots(test.before);
        if (test.selected != kNoButton)
            clickSlot(test.selected);
        ASSERT_EQ(view()->selectedBtn(), test.selected);
        item.setTag(test.argument);
        switch (test.edit) {
        case kAdd:
            theWrangler->addPaletteBtn(&item);
            break;
        case kSet:
            theWrangler->setPaletteBtnAction(&item);
            break;
        case kRemove:
            theWrangler->removePaletteButton(nullptr);
            break;
        case kReset:
            click("resetActionsBtn");
            break;
        case kSwap:
            click("swapWithBtn");
            clickSlot(test.argument);
            break;
        }
        EXPECT_EQ(currentSlots(), test.after);
        if (test.after == test.before)
            continue;
        EXPECT_EQ(view()->selectedBtn(), kNoButton);
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), kChangePalette);
        EXPECT_EQ(slotsOf(event), test.after);
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(PaletteEditingTest, TheControlsFollowTheSelectionAndTheSwap) {
    const auto enabled = [this] {
        std::string which;
        for (const char* name : {"addButtonBtn", "setActionBtn", "removeButtonBtn", "swapWithBtn"})
            which += isEnabled(name) ? '1' : '0';
        return which;
    };
    open();
    EXPECT_EQ(enabled(), "1000");
    clickSlot(1);
    EXPECT_EQ(enabled(), "1111");
    EXPECT_EQ(prompt(), "Chosen: button 2, Double.");
    click("swapWithBtn");
    EXPECT_EQ(enabled(), "0001");
    EXPECT_THAT(prompt(), testing::StartsWith("Choose the button to swap with button 2, Double."));
    clickSlot(kNoButton);
    EXPECT_EQ(enabled(), "1000");
    clickSlot(1);
    clickSlot(kNoButton);
    EXPECT_EQ(view()->selectedBtn(), kNoButton);

    setSlots(kFull);
    EXPECT_EQ(enabled(), "0000");
    clickSlot(8);
    EXPECT_EQ(enabled(), "0111");
}

TEST_F(PaletteEditingTest, TheKeyboardDoesWhatClicksDo) {
    openWithAgent();
    QWidget* widget = viewWidget();
    widget->setFocus(Qt::TabFocusReason);
    const auto press = [widget](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(widget, key);
    };
    press({Qt::Key_Right, Qt::Key_Space});
    EXPECT_EQ(view()->selectedBtn(), 1);
    press({Qt::Key_Home, Qt::Key_Left, Qt::Key_Return});
    EXPECT_EQ(view()->selectedBtn(), 0);
    press({Qt::Key_Escape});
    EXPECT_EQ(view()->selectedBtn(), kNoButton);

    press({Qt::Key_Space});
    click("swapWithBtn");
    press({Qt::Key_End, Qt::Key_Right, Qt::Key_Enter});
    EXPECT_EQ(currentSlots(), (Slots{0, 21, 22, 1, 2, 0, 0, 0, 20}));
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(kChangePalette));
}

TEST_F(PaletteEditingTest, TheMenusHoldEveryActionAndSendItsNumber) {
    openWithAgent();
    const auto choose = [this](const char* button, const char* letters) {
        QWidget* widget = find(button);
        widget->setFocus(Qt::TabFocusReason);
        QTest::keyClick(widget, Qt::Key_Space);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_TRUE(menu) << button;
        QTest::keyClicks(menu, letters);
        QTest::keyClick(menu, Qt::Key_Return);
        EXPECT_FALSE(QApplication::activePopupWidget());
    };
    choose("addButtonBtn", "undo");
    EXPECT_EQ(slotsOf(agentLog_.next()), (Slots{20, 21, 22, 1, 2, 15, 0, 0, 0}));
    clickSlot(0);
    choose("setActionBtn", "hold");
    EXPECT_EQ(slotsOf(agentLog_.next()), (Slots{24, 21, 22, 1, 2, 15, 0, 0, 0}));
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(PaletteEditingTest, ShapeContentAndSizeAreSetAndBounded) {
    openWithAgent();
    click("buttonShapeRadios1");
    EXPECT_EQ(recordField<UInt32>(agentLog_.next(), offsetof(PrefsRecord, buttonShape)), 1U);

    const struct {
        const char* check;
        UInt32 content;
    } contents[] = {{"buttonContentNameCheck", 1},
                    {"buttonContentIconCheck", 0},
                    {"buttonContentNameCheck", 2},
                    {"buttonContentIconCheck", 3}};

    for (const auto& [check, content] : contents) {
        click(check);
        EXPECT_EQ(recordField<UInt32>(agentLog_.next(), offsetof(PrefsRecord, buttonContent)),
                  content);
    }

    const struct {
        const char* button;
        ButtonSize before, after; ///< height, width; the same: nothing is sent
    } sizes[] = {
        {"buttonSizeIncBtn", {40, 60}, {41, 61}},     {"buttonSizeDecBtn", {40, 60}, {39, 59}},
        {"buttonWidthIncBtn", {40, 60}, {40, 61}},    {"buttonHeightDecBtn", {40, 60}, {39, 60}},
        {"buttonWidthIncBtn", {40, 100}, {40, 100}},  {"buttonSizeDecBtn", {20, 60}, {20, 59}},
        {"buttonSizeIncBtn", {100, 100}, {100, 100}}, {"buttonHeightIncBtn", {5, 500}, {20, 100}},
    };

    for (const auto& [button, before, after] : sizes) {
        SCOPED_TRACE(button);
        prefs.buttonSize = before;
        click(button);
        EXPECT_EQ(prefs.buttonSize.height, after.height);
        EXPECT_EQ(prefs.buttonSize.width, after.width);
        if (before.height == after.height && before.width == after.width)
            continue;
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), kChangePalette);
        EXPECT_EQ(recordField<SInt16>(event, offsetof(PrefsRecord, buttonSize)), after.height);
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(PaletteEditingTest, AScreenReaderHearsEverySlot) {
    open();
    auto* list = QAccessible::queryAccessibleInterface(viewWidget());
    ASSERT_EQ(list->childCount(), kNumPaletteSlots);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "2, Double");
    EXPECT_EQ(list->child(8)->text(QAccessible::Name), "9, Empty slot");
    EXPECT_FALSE(list->child(1)->state().selected);
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(list->child(1)->state().selected);
    EXPECT_EQ(view()->selectedBtn(), 1);
    viewWidget()->setFocus();
    EXPECT_EQ(list->focusChild(), list->child(1));
    const QPoint inside = list->child(3)->rect().center();
    EXPECT_EQ(list->childAt(inside.x(), inside.y()), list->child(3));
}

TEST_F(PaletteEditingTest, AnotherVisitForgetsASwapThatWaits) {
    open();
    clickSlot(2);
    click("swapWithBtn");
    pane_->didUnselect();
    pane_->willSelect();
    EXPECT_EQ(view()->selectedBtn(), kNoButton);
    EXPECT_TRUE(isEnabled("addButtonBtn"));
    clickSlot(3);
    EXPECT_EQ(view()->selectedBtn(), 3);
    EXPECT_EQ(currentSlots(), kDefaults);
}

} // namespace
