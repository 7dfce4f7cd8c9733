// SPDX-License-Identifier: MIT
#include "agent/x11/XSwitches.h"

#include "tests/agent/TargetWindow.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <linux/input-event-codes.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using State = XSwitches::State;

constexpr int code(int kernelKey) {
    return kernelKey + FakeDevice::kKernelOffset;
}

constexpr int kScan = code(KEY_KPENTER); ///< with Super the first switch, with Alt the second
constexpr int kSuper = code(KEY_LEFTMETA);
constexpr int kAlt = code(KEY_LEFTALT);
constexpr int kAltGr = 92; ///< of every layout: no key of a keyboard has it
constexpr int kControl = code(KEY_LEFTCTRL);
constexpr int kShift = code(KEY_LEFTSHIFT);

class SwitchesTest : public ApplicationTest<QCoreApplication>, protected XSwitches::Listener {
protected:
    SwitchesTest() {
        switches_.use(record_, 1);
        become(State::Ready);
    }

    /// Returns when the server knows it.
    void become(State state) {
        switches_.setState(state);
        waitFor(server_->connection());
    }

    void switchDown(Switch which, double) override { note("down", which); }

    void switchUp(Switch which, double) override { note("up", which); }

    void onOffKey() override { heard_.push_back("on/off"); }

    void showSettingsKey() override { heard_.push_back("settings"); }

    void cancelKey() override { heard_.push_back("cancel"); }

    void note(const std::string& what, Switch which) {
        static constexpr const char* kNames[] = {"first", "second", "second button"};
        heard_.push_back(what + " " + kNames[static_cast<int>(which)]);
    }

    /// What was heard since the last call.
    std::vector<std::string> heard(std::size_t expected = 0) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return heard_.size() >= expected; }));
        QTest::qWait(20);
        return std::exchange(heard_, {});
    }

    void tap(int key) {
        keyboard_.key(key, true);
        keyboard_.key(key, false);
    }

    /// The hot key, pressed and let go: modifiers first and last.
    void chord(std::initializer_list<int> modifiers, int key) {
        for (const int modifier : modifiers)
            keyboard_.key(modifier, true);
        keyboard_.key(key, true);
        QTest::qWait(5); // a press that is only heard is asked for its modifiers
        keyboard_.key(key, false);
        for (const int modifier : modifiers)
            keyboard_.key(modifier, false);
    }

    void click(int button) {
        mouse_.button(button, true);
        mouse_.button(button, false);
    }

    PrefsRecord record_;
    std::vector<std::string> heard_;

    XvfbServer xvfb_;
    std::string fault_;
    std::unique_ptr<XServer> server_ = XServer::connect(fault_);
    TargetWindow target_{0, 0, 800, 600};
    FakeDevice keyboard_{FakeDevice::Kind::Keyboard};
    FakeDevice mouse_{FakeDevice::Kind::Mouse};
    XSwitches switches_{*server_, *this};
};

TEST_F(SwitchesTest, EachKeyIsHeardAndTakenWhateverIsOpenOrLocked) {
    const struct {
        std::initializer_list<int> modifiers;
        int key;
        std::vector<std::string> heard;
    } kKeys[] = {
        {{kSuper}, kScan, {"down first", "up first"}},
        {{kAlt}, kScan, {"down second", "up second"}},
        {{kAltGr}, kScan, {"down second", "up second"}},
        {{kControl, kShift}, code(KEY_X), {"on/off"}},
        {{kControl, kAlt, kShift}, code(KEY_X), {"settings"}},
        {{}, code(KEY_ESC), {"cancel"}},
        {{kSuper}, code(KEY_X), {}},
        {{}, kScan, {}},
    };

    become(State::Scanning);
    for (const bool isMenuOpen : {false, true}) {
        if (isMenuOpen)
            target_.openMenu();
        for (const int lock : {code(KEY_NUMLOCK), code(KEY_CAPSLOCK), code(KEY_NUMLOCK), 0}) {
            for (const auto& [modifiers, key, expected] : kKeys) {
                SCOPED_TRACE(testing::Message()
                             << "menu " << isMenuOpen << " before lock " << lock << " key " << key);
                chord(modifiers, key);
                EXPECT_EQ(heard(expected.size()), expected);
                const auto events = target_.events();
                const std::string pressed = "key " + std::to_string(key) + " down";
                EXPECT_EQ(std::ranges::count(events, pressed), expected.empty() ? 1 : 0);
            }
            if (lock > 0)
                tap(lock);
        }
        tap(code(KEY_CAPSLOCK));
        EXPECT_THAT(target_.down(), IsEmpty());
    }
}

TEST_F(SwitchesTest, AHeldKeyIsOnePressAndLeavesNoModifierBehind) {
    keyboard_.key(kSuper, true);
    keyboard_.key(kScan, true);
    QTest::qWait(1000); // repetitions begin after 660 ms
    EXPECT_THAT(heard(), ElementsAre("down first"));
    keyboard_.key(kSuper, false);
    keyboard_.key(kScan, false);
    EXPECT_THAT(heard(1), ElementsAre("up first"));
    EXPECT_THAT(target_.down(), IsEmpty());

    // Super isn't alone for the programs, and they see nothing else.
    const auto events = target_.events();
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events.front(), "key 133 down");
    EXPECT_EQ(events.back(), "key 133 up");
}

TEST_F(SwitchesTest, AMouseIsASwitchWhileItRests) {
    click(1);
    EXPECT_THAT(heard(2), ElementsAre("down first", "up first"));
    EXPECT_THAT(target_.events(), IsEmpty());
    click(3);
    EXPECT_THAT(target_.events(2), ElementsAre("press 3 at 400,300", "release 3 at 400,300"));

    // The helper's mouse: a double click, and something is dragged.
    mouse_.move(-24, -32);
    click(1);
    click(1);
    EXPECT_THAT(target_.events(4), ElementsAre("press 1 at 376,268", "release 1 at 376,268",
                                               "press 1 at 376,268", "release 1 at 376,268"));
    mouse_.button(1, true);
    EXPECT_THAT(target_.events(1), ElementsAre("press 1 at 376,268"));
    mouse_.move(-6, -8);
    mouse_.move(-70, 40);
    EXPECT_THAT(target_.down(), ElementsAre("button 1"));
    mouse_.button(1, false);
    EXPECT_THAT(target_.events(3),
                ElementsAre("move to 370,260", "move to 300,300", "release 1 at 300,300"));
    EXPECT_THAT(heard(), IsEmpty());

    record_.fakeMouse2SwitchMode = 0;
    switches_.use(record_, 1);
    become(State::Scanning);
    click(3);
    EXPECT_THAT(target_.events(2), ElementsAre("press 3 at 300,300", "release 3 at 300,300"));
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(SwitchesTest, WhatIsTakenAndHeardFollowsTheState) {
    const struct {
        State state;
        bool hasKeys, hasMouse;
        const char* heard;
        bool isTaken;
    } kCases[] = {
        {State::Free, true, true, "", false},
        {State::Off, true, true, "on/off, down first, up first, down first, up first", false},
        {State::Off, false, false, "on/off", false},
        {State::Ready, true, true, "on/off, down first, up first, down first, up first", true},
        {State::Ready, true, false, "on/off, down first, up first", true},
        {State::Ready, false, true, "on/off, down first, up first", true},
        {State::Scanning, false, false, "on/off, cancel", true},
    };

    for (const auto& row : kCases) {
        SCOPED_TRACE(testing::Message()
                     << static_cast<int>(row.state) << row.hasKeys << row.hasMouse);
        record_.wantHotKeyTrigger = row.hasKeys;
        record_.wantMouseClickTrigger = row.hasMouse;
        switches_.use(record_, 1);
        become(row.state);
        chord({kControl, kShift}, code(KEY_X));
        chord({kSuper}, kScan);
        tap(code(KEY_ESC));
        click(1);
        std::string all;
        for (const std::string& one : heard(*row.heard ? 1 : 0))
            all += (all.empty() ? "" : ", ") + one;
        EXPECT_EQ(all, row.heard);
        const auto events = target_.events();
        const auto count = [&](int key) {
            return std::ranges::count(events, "key " + std::to_string(key) + " down");
        };
        EXPECT_EQ(count(kScan), row.isTaken && row.hasKeys ? 0 : 1);
        EXPECT_EQ(std::ranges::count(events, "press 1 at 400,300"),
                  row.isTaken && row.hasMouse ? 0 : 1);
        EXPECT_EQ(count(code(KEY_ESC)), row.state == State::Scanning ? 0 : 1);
    }
}

TEST_F(SwitchesTest, WhileItIsOffAHeldSwitchIsHeardUntilItMovesOrComesUp) {
    become(State::Off);
    mouse_.button(1, true);
    EXPECT_THAT(heard(1), ElementsAre("down first"));
    mouse_.move(4, 3);
    EXPECT_THAT(heard(), IsEmpty());
    mouse_.move(4, 3);
    EXPECT_THAT(heard(1), ElementsAre("up first"));
    mouse_.button(1, false);
}

TEST_F(SwitchesTest, DevicesComeAndGo) {
    keyboard_.key(kSuper, true);
    keyboard_.key(kScan, true);
    EXPECT_THAT(heard(1), ElementsAre("down first"));
    keyboard_.setEnabled(false);
    EXPECT_THAT(heard(1), ElementsAre("up first"));
    keyboard_.setEnabled(true);
    QTest::qWait(50);
    target_.events();
    chord({kSuper}, kScan);
    EXPECT_THAT(heard(2), ElementsAre("down first", "up first"));
    EXPECT_THAT(target_.events(), testing::Not(testing::Contains("key 104 down")));
}

/// A raw motion event as the server sends it.
struct RawMotion {
    xcb_input_raw_motion_event_t head;
    std::uint32_t mask;
    xcb_input_fp3232_t values[2];
};

constexpr double kRestart = 9; ///< this moment's step is a restart

TEST(MotionTest, CountsFromPlaceToPlaceWithinFiveSeconds) {
    struct Step {
        double moment;
        int x, y;
    };

    const struct {
        const char* name;
        bool isAbsolute;
        std::vector<Step> steps;
        double farMoment;
    } kCases[] = {
        {"at once", false, {{10, 24, 32}}, 10},
        {"in steps", false, {{10, 20, 0}, {12, 20, 0}}, 12},
        {"too slowly", false, {{10, 20, 0}, {15.1, 20, 0}}, -INFINITY},
        {"to and fro", false, {{10, 30, 0}, {11, -30, 0}, {12, 30, 0}}, -INFINITY},
        {"a tablet's first place", true, {{10, 900, 900}, {11, 910, 900}}, -INFINITY},
        {"a tablet heard again", true, {{8, 0, 0}, {kRestart, 0, 0}, {11, 900, 0}}, -INFINITY},
        {"a tablet", true, {{10, 0, 0}, {11, 0, 50}}, 11},
    };

    xcb_screen_t screen{};
    screen.width_in_pixels = screen.height_in_pixels = 1000;
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.name);
        InputDevice device;
        for (auto& axis : device.axes)
            axis = {row.isAbsolute, 0, 1000};
        Motion motion(device, screen, 40);
        for (const auto& [moment, x, y] : row.steps) {
            if (moment == kRestart) {
                motion.restart(moment);
                continue;
            }
            RawMotion event{};
            event.head.valuators_len = 1;
            event.mask = 3;
            event.values[0].integral = x;
            event.values[1].integral = y;
            motion.add(event.head, moment);
        }
        EXPECT_EQ(motion.farMoment(), row.farMoment);
    }
}

} // namespace
