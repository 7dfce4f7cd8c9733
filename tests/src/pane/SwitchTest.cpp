// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/ProcessName.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/SignalProcess.h"

#include <QDBusConnection>

namespace {

/// Nobody is locked out: what would take the switch away is asked about, and what nothing scans for
/// is said.
class SwitchTest : public PaneTest {
protected:
    std::string state() { return find<QLabel>("masterState")->text().toStdString(); }

    /// Another process takes part and is gone again.
    static void showProcessesAnew() {
        constexpr char kBus[] = "other";
        const QString name = formatProcessName({fourCharCode("APPL"), fourCharCode("othr"), 1});
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, kBus).registerService(name);
        QDBusConnection::disconnectFromBus(kBus);
        QTest::qWait(50);
    }

    static bool isAsked() { return told().find("Keep this?") != std::string::npos; }

    /// Presses a button of the strip.
    static void answer(std::size_t button) {
        const CurrentMessage message = *currentMessage();
        withdrawMessage(message.topic);
        message.message.buttons.at(button).press();
    }

    /// A change by some control.
    template <class Change>
    static void make(Change change, ChangeMask mask) {
        change(prefs);
        theWrangler->changed(mask);
    }
};

constexpr std::size_t kKeep = 0, kPutBack = 1;

TEST_F(SwitchTest, WhatTakesTheSwitchAwayIsPutBackUnlessItIsKept) {
    const struct {
        const char* what;
        void (*lose)(PrefsRecord&);
        ChangeMask mask;
        const char* state;
    } cases[] = {
        {"the last trigger", [](PrefsRecord& record) { record.wantHotKeyTrigger = 0; },
         kChangeTriggers, "No press is heard"},
        {"the scan key", [](PrefsRecord& record) { record.hotKeys[1].keyCode = -1; },
         kChangeHotKeys, "Ready for your switch"}, // for the second one
        {"a tiny area",
         [](PrefsRecord& record) {
             record.scanArea = {0, 0, 640, 43};
             record.useScanArea = 1;
         },
         kChangeScanArea, "Ready for your switch"},
    };

    openWithAgent();
    click("wantMouseClickTriggerCheck");
    EXPECT_FALSE(isAsked()) << "there is another";
    std::vector<ChangeMask> masks = {kChangeTriggers};
    for (const auto& [what, lose, mask, state] : cases) {
        SCOPED_TRACE(what);
        const PrefsRecord before = prefs;
        make(lose, mask);
        EXPECT_TRUE(isAsked()) << told();
        EXPECT_EQ(this->state(), state);
        answer(kPutBack);
        EXPECT_TRUE(differences(before, prefs).none());
        EXPECT_EQ(this->state(), "Ready for your switch");

        make(lose, mask);
        answer(kKeep);
        EXPECT_FALSE(isAsked());
        click("lineScanTimeIncBtn");
        EXPECT_FALSE(isAsked()) << "it was answered";
        find<QPushButton>("undoBtn")->click();
        find<QPushButton>("undoBtn")->click();
        EXPECT_TRUE(differences(before, prefs).none());
        masks.insert(masks.end(), {mask, mask, mask, kChangeScanSpeed, kChangeScanSpeed, mask});
    }
    make(cases[0].lose, kChangeTriggers);
    withdrawMessage(std::string(currentMessage()->topic)); // “Hide this” is no answer
    EXPECT_TRUE(pane_->commitEditing());
    EXPECT_EQ(prefs.wantHotKeyTrigger, 1) << "the end of the visit is none either";
    masks.insert(masks.end(), {kChangeTriggers, kChangeTriggers});
    EXPECT_EQ(remainingMasks(), masks);
}

TEST_F(SwitchTest, WithoutAnAnswerItGoesBackByItself) {
    openWithAgent();
    click("wantMouseClickTriggerCheck");
    click("wantHotKeyTriggerCheck");
    ASSERT_TRUE(isAsked());
    EXPECT_FALSE(QTest::qWaitFor([] { return prefs.wantHotKeyTrigger == 1; }, 28'000));
    EXPECT_TRUE(QTest::qWaitFor([] { return prefs.wantHotKeyTrigger == 1; }, 4'000));
    EXPECT_TRUE(find<QAbstractButton>("wantHotKeyTriggerCheck")->isChecked());
    EXPECT_EQ(remainingMasks(), std::vector<ChangeMask>(3, kChangeTriggers));
}

TEST_F(SwitchTest, OffSaysEveryWayBackThatThereIs) {
    openWithAgent();

    const struct {
        bool hasKey, hasSwitch;
        Qt::KeyboardModifiers modifiers;
        const char* told;
    } cases[] = {
        {true, true, {}, "Hold your switch for four seconds to switch it on again, or press"},
        {false, true, {}, "Hold your switch for four seconds to switch it on again."},
        {true, false, {}, "control+shift+X switches it on again."},
        {false, false, {}, "only this window switches it on again."},
        {true, true, Qt::AltModifier, "only this window switches it on again."}, // it is quit
    };

    for (const auto& [hasKey, hasSwitch, modifiers, text] : cases) {
        prefs.hotKeys[0].keyCode = hasKey ? 7 : -1;
        prefs.wantHotKeyTrigger = prefs.wantMouseClickTrigger = hasSwitch;
        click("masterOnOffRadios0", modifiers);
        withdrawMessage("switch"); // this test has made it deaf
        EXPECT_THAT(told(), testing::HasSubstr(text));
        const std::string expected = modifiers ? "Korvex isn’t running" : "Off";
        EXPECT_TRUE(QTest::qWaitFor([&] { return state() == expected; })) << state();
        if (!modifiers)
            answer(0);
    }
    EXPECT_THAT(remainingMasks(), testing::Each(kChangeOnOff));
}

TEST_F(SwitchTest, AnAgentThatEndsUnaskedIsToldAndStartedAgain) {
    openWithAgent();
    for (const bool byTheStrip : {true, false}) {
        signalProcess(agentPID(), SIGKILL);
        ASSERT_TRUE(QTest::qWaitFor([&] { return state() == "Korvex isn’t running"; }));
        waitForNoAgent();
        showProcessesAnew();
        EXPECT_EQ(told(), "Korvex has ended by itself, so nothing is scanned now.");
        byTheStrip ? answer(0) : click("masterOnOffRadios1");
        waitForAgent();
        EXPECT_TRUE(QTest::qWaitFor([&] { return state() == "Ready for your switch"; }));
        EXPECT_EQ(told(), "");
    }
}

/// A bundle whose agent isn't there.
class NoAgentTest : public SwitchTest {
protected:
    NoAgentTest() {
        fs::copy(KORVEX_BUNDLE, bundlePath_, fs::copy_options::recursive);
        fs::remove_all(bundlePath_ / "Contents/Linux/Korvex Agent.app");
    }

    fs::path bundlePath_ = makeSandboxFolder("bundle") / "Korvex.prefPane";
};

TEST_F(NoAgentTest, IsAlwaysSaid) {
    open(bundlePath_.c_str());
    EXPECT_EQ(state(), "Nothing scans: no agent is installed");
    EXPECT_THAT(told(), testing::HasSubstr("No agent is installed"));
    click("lineScanTimeIncBtn");
    EXPECT_THAT(told(), testing::HasSubstr("No agent is installed"));
    click("masterOnOffRadios0");
    EXPECT_THAT(told(), testing::HasSubstr("only this window switches it on again"));
}

} // namespace
