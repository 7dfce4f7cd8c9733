// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSMenuItem.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "tests/support/PaneFixture.h"

#include <sstream>

namespace {

/// The nine actions, as in "20 21 22 1 2 0 0 0 0".
using Slots = std::string;
const Slots kDefaults = "20 21 22 1 2 0 0 0 0";
const Slots kFull = "20 21 22 1 2 3 4 5 6";

/// The slots of the record, or of the one in the agent's event.
Slots slotsOf(const PrefsRecord& record) {
    Slots slots;
    for (int i = 0; i < kNumPaletteSlots; ++i)
        slots += (i ? " " : "") + std::to_string(record.buttonActions[i]);
    return slots;
}

Slots slotsOf(const QJsonObject& event) {
    return slotsOf(recordField<PrefsRecord>(event, 0));
}

/// The palette's editor in the open pane, with the real agent.
class PaletteEditingTest : public PaneTest {
protected:
    PaletteView* view() { return dynamic_cast<PaletteView*>(viewWidget()->view()); }

    /// Shown and drawn: before that its buttons have no place.
    ViewWidget* viewWidget() {
        auto* widget = static_cast<ViewWidget*>(find("paletteView"));
        widget->repaint();
        return widget;
    }

    /// Clicks the slot, or beside all of them.
    void clickSlot(SInt32 slot) {
        const NSRect frame = view()->boundsOfBtn(slot);
        const int x = slot == kNoButton ? viewWidget()->width() - 1 : static_cast<int>(frame.x) + 5;
        QTest::mouseClick(viewWidget(), Qt::LeftButton, {}, {x, 5});
    }

    static void send(const char* action, NSObject& sender) {
        theWrangler->selector(action)->send(*theWrangler, sender);
    }

    void setSlots(const Slots& slots) {
        std::istringstream actions(slots);
        for (int i = 0, action; i < kNumPaletteSlots && actions >> action; ++i)
            prefs.buttonActions[i] = static_cast<UInt8>(action);
        theWrangler->loadValues();
    }
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
        {"after the last", kDefaults, kNoButton, kAdd, 7, "20 21 22 1 2 7 0 0 0"},
        {"before the selected one", kDefaults, 1, kAdd, 7, "20 7 21 22 1 2 0 0 0"},
        {"costs the next gap", "20 21 0 1 2 3 4 5 6", 0, kAdd, 7, "7 20 21 1 2 3 4 5 6"},
        {"keeps all gaps", "20 21 0 1 0 0 0 0 0", 0, kAdd, 7, "7 20 21 0 1 0 0 0 0"},
        {"in the last run of gaps", "20 0 0 1 2 3 4 5 6", 8, kAdd, 7, "20 7 0 1 2 3 4 5 6"},
        {"in an empty palette", "0 0 0 0 0 0 0 0 0", kNoButton, kAdd, 7, "7 0 0 0 0 0 0 0 0"},
        {"no room at all", kFull, kNoButton, kAdd, 7, kFull},
        {"no such action", kDefaults, kNoButton, kAdd, 40, kDefaults},
        {"set", kDefaults, 2, kSet, 7, "20 21 7 1 2 0 0 0 0"},
        {"set an empty slot", kDefaults, 8, kSet, 7, "20 21 22 1 2 0 0 0 7"},
        {"set the same", kDefaults, 2, kSet, 22, kDefaults},
        {"set without a selection", kDefaults, kNoButton, kSet, 7, kDefaults},
        {"remove", kDefaults, 3, kRemove, 0, "20 21 22 2 0 0 0 0 0"},
        {"remove the last slot", kFull, 8, kRemove, 0, "20 21 22 1 2 3 4 5 0"},
        {"remove a gap", "20 0 21 0 0 0 0 0 0", 1, kRemove, 0, "20 21 0 0 0 0 0 0 0"},
        {"remove without a selection", kDefaults, kNoButton, kRemove, 0, kDefaults},
        {"swap", kDefaults, 0, kSwap, 2, "22 21 20 1 2 0 0 0 0"},
        {"swap with a gap", kDefaults, 0, kSwap, 8, "0 21 22 1 2 0 0 0 20"},
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
        if (test.edit == kAdd)
            send("addPaletteBtn:", item);
        else if (test.edit == kSet)
            send("setPaletteBtnAction:", item);
        else if (test.edit == kRemove)
            send("removePaletteButton:", item);
        else
            click(test.edit == kReset ? "resetActionsBtn" : "swapWithBtn");
        if (test.edit == kSwap)
            clickSlot(test.argument);
        EXPECT_EQ(slotsOf(prefs), test.after);
        if (test.after == test.before)
            continue;
        EXPECT_EQ(view()->selectedBtn(), kNoButton);
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), kChangePalette);
        EXPECT_EQ(slotsOf(event), test.after);
    }
}

TEST_F(PaletteEditingTest, TheControlsFollowTheSelectionAndTheSwapAndAVisitForgetsBoth) {
    const auto enabled = [this] {
        std::string which;
        for (const char* name : {"addButtonBtn", "setActionBtn", "removeButtonBtn", "swapWithBtn"})
            which += find(name)->isEnabled() ? '1' : '0';
        return which;
    };
    open();
    clickSlot(1);
    EXPECT_EQ(enabled(), "1111");
    click("swapWithBtn");
    EXPECT_EQ(enabled(), "0001");
    EXPECT_THAT(find<QLabel>("palettePrompt")->text().toStdString(),
                testing::StartsWith("Choose the button to swap with button 2, Double."));
    pane_->didUnselect();
    pane_->willSelect();
    EXPECT_EQ(enabled(), "1000");
    clickSlot(3);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);
    QApplication::sendEvent(viewWidget(), &repeat);
    EXPECT_EQ(view()->selectedBtn(), 3) << "a key that is held down clicks once";
    EXPECT_EQ(slotsOf(prefs), kDefaults);
    setSlots(kFull);
    EXPECT_EQ(enabled(), "0000");
}

TEST_F(PaletteEditingTest, AButtonThatDisablesItselfLeavesTheKeyboardWhereOneMorePressIsHarmless) {
    open();
    clickSlot(1);
    prefs.borderGap = 1;
    prefs.lineScanTime = 1.5;
    for (const auto& [button, heir] : {std::pair("removeButtonBtn", "paletteView"),
                                       {"borderGapDecBtn", "borderGapLabel"},
                                       {"lineScanTimeDecBtn", "lineScanTimeLabel"}}) {
        find(button)->setFocus();
        QTest::keyClick(find(button), Qt::Key_Space);
        EXPECT_FALSE(find(button)->isEnabled());
        EXPECT_TRUE(find(heir)->hasFocus()) << heir;
    }
    EXPECT_EQ(slotsOf(prefs), "20 22 1 2 0 0 0 0 0");
}

TEST_F(PaletteEditingTest, NineSquaresFillTheRowAndClicksAndScreenReadersFindThem) {
    open();
    ViewWidget* widget = viewWidget();
    for (const auto& [width, gap] : {std::pair(479, 5), {480, 6}, {432, 0}, {376, -7}, {472, 5}}) {
        SCOPED_TRACE(width);
        widget->resize(width, 48);
        widget->grab();
        for (SInt32 i = 0; i < kNumPaletteSlots; ++i) {
            const NSRect frame = view()->boundsOfBtn(i);
            EXPECT_EQ(QRectF(frame.x, frame.y, frame.width, frame.height),
                      QRectF(i * (48 + gap), 0, 48, 48));
        }
    }
    for (const auto& [x, slot] : {std::pair(47, 0), {50, kNoButton}, {53, 1}, {471, 8}}) {
        QTest::mouseClick(widget, Qt::LeftButton, {}, {x, 47});
        EXPECT_EQ(view()->selectedBtn(), slot) << x;
    }

    prefs.buttonActions[7] = 255;
    auto* list = QAccessible::queryAccessibleInterface(widget);
    ASSERT_EQ(list->childCount(), kNumPaletteSlots);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "2, Double");
    EXPECT_EQ(list->child(7)->text(QAccessible::Name), "8, Action 255");
    EXPECT_EQ(list->child(8)->text(QAccessible::Name), "9, Empty slot");
    act(list->child(1));
    EXPECT_TRUE(list->child(1)->state().selected);
    const QPoint inside = list->child(3)->rect().center();
    EXPECT_EQ(list->childAt(inside.x(), inside.y()), list->child(3));
}

} // namespace
