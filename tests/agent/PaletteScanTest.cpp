// SPDX-License-Identifier: MIT
#include "agent/scan/PalettePlace.h"
#include "tests/agent/ScannerFixture.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <fstream>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// With a palette of large buttons, in step scanning: a few quick presses choose a place.
class PaletteScanTest : public ScannerTest {
protected:
    static PrefsRecord withButtons(std::initializer_list<UInt8> actions) {
        PrefsRecord record = quickSettings();
        record.scanMode = 2;
        record.autoRepeatTime = 0.5;
        record.buttonSize = {80, 80};
        std::ranges::copy(actions, record.buttonActions);
        return record;
    }

    void presses(int count, int code = kScanKey) {
        for (int i = 0; i < count; ++i)
            press(code, 0.005);
    }

    /// The tenth of the tenth of the screen that has the place. Where its middle is, as text.
    std::string choose(Place place) {
        presses(1);
        return chooseOn(place);
    }

    /// The same once the scan has been started.
    std::string chooseOn(Place place) {
        const int x = static_cast<int>(place.x) * 100 / kWidth;
        const int y = static_cast<int>(place.y) * 100 / kHeight;
        for (const int step : {y, x}) {
            presses(step / 10);
            presses(1, kSecondKey);
            presses(step % 10);
            presses(1, kSecondKey);
        }
        return std::to_string(x * 8 + 4) + "," + std::to_string(y * 6 + 3);
    }

    Place middleOf(std::size_t slot) const {
        const PalettePlace palette(settings_, {{0, 0, kWidth, kHeight}});
        const PaletteBox& box = palette.layout.buttons[slot];
        return {palette.frame.left + box.left + box.width / 2.0,
                palette.frame.top + box.top + box.height / 2.0};
    }

    /// What the target is told until then, without the moves on the way.
    std::vector<std::string> eventsUntil(const std::string& last) {
        std::vector<std::string> all;
        std::ignore = QTest::qWaitFor([&] {
            for (const std::string& event : target_.events())
                if (!event.starts_with("move"))
                    all.push_back(event);
            return !all.empty() && all.back() == last;
        });
        return all;
    }

    std::vector<std::string> clicks(int button, int count, const std::string& place) {
        std::vector<std::string> all;
        for (int i = 0; i < count; ++i)
            for (const char* what : {"press ", "release "})
                all.push_back(what + std::to_string(button) + " at " + place);
        return all;
    }
};

const Place kHere{604, 99}, kThere{700, 501};

TEST_F(PaletteScanTest, AButtonSaysWhatTheNextPointGets) {
    use(withButtons({21, 23, 22, 24}));
    choose(middleOf(0));
    std::string here = choose(kHere);
    EXPECT_EQ(target_.events(4), clicks(1, 2, here)) << "double";
    choose(kHere);
    EXPECT_EQ(target_.events(2), clicks(1, 1, here)) << "once";
    choose(middleOf(1));
    choose({2, 300}); // the edge of the palette
    choose(kHere);
    EXPECT_EQ(target_.events(2), clicks(3, 1, here)) << "still armed";

    choose(middleOf(2));
    choose(kHere);
    std::string there = choose(kThere);
    EXPECT_THAT(eventsUntil("release 1 at " + there),
                ElementsAre("press 1 at " + here, "release 1 at " + there));

    choose(middleOf(3));
    choose(kHere);
    choose(middleOf(0)); // armed for later
    choose({404, 99});
    choose(kThere);
    EXPECT_THAT(eventsUntil("press 1 at " + here), ElementsAre("press 1 at " + here));
    EXPECT_THAT(target_.down(), ElementsAre("button 1"));
    choose(middleOf(3));
    EXPECT_THAT(eventsUntil("release 1 at " + there), ElementsAre("release 1 at " + there));
    EXPECT_THAT(target_.down(), IsEmpty());

    // Cancelled, it goes back.
    choose(middleOf(2));
    choose(kHere);
    target_.events(1);
    press();
    wait(0.2);
    press(kEscape);
    EXPECT_THAT(eventsUntil("release 1 at " + here),
                ElementsAre("key 9 down", "key 9 up", "release 1 at " + here));
}

TEST_F(PaletteScanTest, KilledItHoldsNothing) {
    constexpr UInt8 kHold = 24, kShift = 26;
    PrefsRecord record = withButtons({kHold, kShift});
    record.clickDuration = 500;
    for (const std::size_t slot : {0, 1}) {
        double best = INFINITY; // of a few: the machine is loaded
        for (int i = 0; i < 2 && best > 0.05; ++i) {
            waitForAgent(); // its guard starts it again, three times at most
            use(record);
            choose(middleOf(slot));
            choose(kHere);
            EXPECT_TRUE(QTest::qWaitFor([&] { return target_.down().size() == slot + 1; }));
            const pid_t agent = agentPID();
            const double began = XServer::now();
            signalAgent(SIGKILL);
            while (!target_.down().empty() && XServer::now() < began + 5)
                usleep(500);
            best = XServer::now() - began;
            waitForEnd(agent);
        }
        EXPECT_LT(best, 0.05) << slot;
    }
}

TEST_F(PaletteScanTest, ANewRecordIsThePaletteAtOnce) {
    use(withButtons({21, 22}));
    presses(1);
    use(withButtons({22, 23}));
    chooseOn(middleOf(1));
    const std::string here = choose(kHere);
    EXPECT_EQ(target_.events(2), clicks(3, 1, here));
}

TEST_F(PaletteScanTest, WhatRepeatsAndWhatRestsEndsByTheSwitch) {
    use(withButtons({17, 38}));
    choose(middleOf(0));
    target_.events(6); // three times
    EXPECT_THAT(target_.down(), IsEmpty());
    presses(1);
    target_.events();
    wait(0.7);
    EXPECT_THAT(target_.events(), IsEmpty()) << "it has ended";
    const std::string here = choose(kHere);
    EXPECT_EQ(target_.events(2), clicks(1, 1, here)) << "the press before started no scan";

    // What repeats was meant for the window that was active.
    choose(middleOf(0));
    target_.events(2);
    QProcess::execute(
        "xprop", {"-root", "-f", "_NET_ACTIVE_WINDOW", "32c", "-set", "_NET_ACTIVE_WINDOW", "7"});
    target_.events();
    wait(0.7);
    EXPECT_THAT(target_.events(), IsEmpty());

    // A pause ends as scanning is switched on.
    choose(middleOf(1));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        press();
        return !target_.events().empty();
    })) << "the switch is the program's";
    press(kScanKey, 4.3);
    wait(0.3);
    target_.events();
    choose(kHere);
    EXPECT_EQ(target_.events(2), clicks(1, 1, here));
}

/// What the window is asked for: the line's time, and which settings.
struct {
    double lineScanTime = 0;
    std::uint64_t settings = 0;
} asked;

OSErr setSettings(const AppleEvent* event, AppleEvent*, void*) {
    PrefsRecord record;
    std::size_t size = 0;
    AEGetParamPtr(event, keyDirectObject, fourCharCode("KrPf"), nullptr, &record, sizeof record,
                  &size);
    AEGetParamPtr(event, fourCharCode("Sets"), fourCharCode("comp"), nullptr, &asked.settings,
                  sizeof asked.settings, &size);
    asked.lineScanTime = record.lineScanTime;
    return noErr;
}

TEST_F(PaletteScanTest, FasterAndSlowerAreTheWindowsOrStored) {
    use(withButtons({36, 37}));
    const auto isStored = [](const std::string& time) {
        std::ifstream file(storedFile());
        const std::string text(std::istreambuf_iterator<char>(file), {});
        return text.find("lineScanTime") != std::string::npos &&
               text.find(time) != std::string::npos;
    };
    // This process answers that it shows no window.
    choose(middleOf(0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isStored("1.500000"); }));

    AEInstallEventHandler(fourCharCode("Krvx"), fourCharCode("PSet"), setSettings, nullptr);
    choose(middleOf(1));
    EXPECT_TRUE(QTest::qWaitFor([] { return asked.lineScanTime == 2; }));
    EXPECT_EQ(std::popcount(asked.settings), 2);
    EXPECT_TRUE(isStored("1.500000")) << "the window stores it";
}

} // namespace
