// SPDX-License-Identifier: MIT
#include "tests/agent/ScannerFixture.h"

#include <algorithm>
#include <functional>
#include <random>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(ScannerTest, EachWayOfScanningHitsItsPlace) {
    use(quickSettings());
    scan();

    PrefsRecord record = quickSettings();
    record.useScanAcceleration = 1;
    use(record);
    scan();

    record = quickSettings();
    record.triggerOnRelease = 1;
    record.minTriggerDuration = 0.05;
    use(record);
    press(kScanKey, 0.01); // too short
    const Span start = press(kScanKey, 0.2, true);
    wait(kDelay + 0.3);
    const Span line = press(kScanKey, 0.2, true);
    wait(kDelay + 0.3);
    const Span pointer = press(kScanKey, 0.2, true);
    expectClick(start, line, line, pointer);

    record = quickSettings();
    record.scanMode = 1;
    use(record);
    const Span down = key(kScanKey, true);
    wait(kDelay + 0.4);
    const Span up = key(kScanKey, false);
    wait(record.inverseReleaseTime + 0.1);
    const Span again = key(kSecondKey, true);
    wait(kDelay + 0.5);
    const Span chosen = key(kSecondKey, false);
    expectClick(down, up, again, chosen);

    record.scanMode = 2;
    use(record);
    press();
    press();
    press();
    press(kSecondKey); // the third band
    press();
    press(kScanKey, 1.2); // its second step
    press();
    press(kSecondKey);
    press(kSecondKey); // the second band, its first step
    EXPECT_THAT(target_.events(2), ElementsAre("press 1 at 84,129", "release 1 at 84,129"));
}

TEST_F(ScannerTest, AMouseButtonIsASwitchThatStaysStill) {
    PrefsRecord record = quickSettings();
    record.wantHotKeyTrigger = 0;
    record.wantMouseClickTrigger = 1;
    use(record);
    const auto click = [&](int button) {
        const double from = XServer::now();
        mouse_.button(button, true);
        const Span span{from, XServer::now()};
        wait(0.02);
        mouse_.button(button, false);
        return span;
    };
    const Span start = click(1);
    wait(kDelay + 0.4);
    const Span line = click(1);
    wait(kDelay + 0.4);
    const Span pointer = click(1);
    expectClick(start, line, line, pointer);

    // The other button cancels, and the scan is over.
    click(1);
    wait(kDelay + 0.2);
    click(3);
    EXPECT_THAT(target_.events(), IsEmpty());
    click(3);
    EXPECT_THAT(target_.events(2).front(), testing::StartsWith("press 3"));
}

TEST_F(ScannerTest, EndsAsItIsTold) {
    use(quickSettings());
    // Escape is the agent's only while it scans.
    begin();
    press(kEscape);
    EXPECT_THAT(target_.events(), IsEmpty());
    expectNoScan();

    // A line that nobody stops goes twice.
    PrefsRecord record = quickSettings();
    record.lineScanTime = 1;
    use(record);
    begin();
    wait(2 * (kDelay + record.lineScanTime));
    expectNoScan();

    // Switched off by its key, which is taken: the scan key is the programs' then.
    use(quickSettings());
    begin();
    onOffKey();
    EXPECT_TRUE(QTest::qWaitFor([] { return !isOn; }));
    target_.events();
    press();
    EXPECT_THAT(target_.events(2), ElementsAre("key 38 down", "key 38 up"));

    // Held for four seconds it switches on again, and isn't taken meanwhile.
    press(kScanKey, 4.3);
    EXPECT_TRUE(isOn);
    wait(0.5);
    EXPECT_EQ(target_.events(2).back(), "key 38 up");
    EXPECT_THAT(target_.down(), IsEmpty());
    scan();
}

/// Of the line where it crosses the screen's middle; 0 without one.
int middleOf(const std::vector<std::uint32_t>& column, std::uint32_t color) {
    const auto first = std::ranges::find(column, color) - column.begin();
    const auto count = std::ranges::count(column, color);
    return count ? static_cast<int>(first + count / 2) : 0;
}

TEST_F(ScannerTest, IsSwitchedOffByItsKeyInEachState) {
    PrefsRecord record = quickSettings();
    record.clickDuration = 300;
    const auto toPointer = [&] {
        begin();
        press();
        wait(kDelay + 0.2);
    };

    const struct {
        const char* name;
        SInt32 mode;
        std::function<void()> get;
    } kStates[] = {
        {"at rest", 0, [] {}},
        {"before the line", 0, [&] { press(); }},
        {"the line", 0, [&] { begin(); }},
        {"the pointer", 0, toPointer},
        {"the click", 0,
         [&] {
             toPointer();
             press();
             target_.events(1);
         }},
        {"a line that is held on to", 1,
         [&] {
             key(kScanKey, true);
             wait(kDelay + 0.2);
         }},
        {"a band", 2, [&] { press(); }},
    };

    for (const auto& [name, mode, get] : kStates) {
        SCOPED_TRACE(name);
        record.scanMode = mode;
        use(record);
        get();
        onOffKey();
        EXPECT_TRUE(QTest::qWaitFor([] { return !isOn; }));
        EXPECT_THAT(agentWindows(), IsEmpty());
        key(kScanKey, false);
        EXPECT_THAT(target_.down(), IsEmpty());
        onOffKey();
        EXPECT_TRUE(QTest::qWaitFor([] { return isOn; }));
    }
    use(quickSettings());
    target_.events();
    scan();
}

TEST_F(ScannerTest, ChangesInMidScanAreFelt) {
    constexpr std::uint32_t kDark = 0x640000, kBlue = 0x0000ff;
    PrefsRecord record = quickSettings();
    record.lineScanTime = 4;
    use(record);
    const Span start = press();
    wait(kDelay + 0.5);
    ASSERT_GT(middleOf(column(), kDark), 0);

    // The look at once, the speed from the next sweep on.
    record.lineColor = {0, 0, 255};
    record.lineScanTime = 2;
    record.pointerScanTime = 3;
    use(record);
    EXPECT_TRUE(QTest::qWaitFor([&] { return middleOf(column(), kBlue) > 0; }));
    const Span line = press();
    wait(kDelay + 0.6);
    const Span pointer = press();
    settings_.lineScanTime = 4;
    expectClick(start, line, line, pointer);

    // Another region, other switches and off end the scan.
    const struct {
        const char* name;
        std::function<void(PrefsRecord&)> change;
    } kEnds[] = {
        {"the area",
         [](PrefsRecord& to) {
             to.scanArea = {100, 100, 200, 200};
         }},
        {"its use", [](PrefsRecord& to) { to.useScanArea = 1; }},
        {"the menu bar", [](PrefsRecord& to) { to.canScanMenuBar = 0; }},
        {"the mode", [](PrefsRecord& to) { to.scanMode = 2; }},
        {"release", [](PrefsRecord& to) { to.triggerOnRelease = 1; }},
        {"the switch", [](PrefsRecord& to) { to.wantMouseClickTrigger = 1; }},
        {"off", [](PrefsRecord& to) { to.on = 0; }},
    };

    for (const auto& [name, change] : kEnds) {
        SCOPED_TRACE(name);
        record = quickSettings();
        use(record);
        begin();
        change(record);
        use(record);
        expectNoScan();
    }
}

TEST_F(ScannerTest, WaitsAndIgnoresForAsLongAsItIsTold) {
    PrefsRecord record = quickSettings();
    record.preScanDelay = 1;
    record.afterClickDelay = 1.5;
    use(record);
    // Before the line and before the pointer presses do nothing.
    const Span start = press();
    wait(0.4);
    press();
    wait(0.9);
    const Span line = press();
    wait(0.3);
    press();
    wait(1.1);
    const Span pointer = press();
    expectClick(start, line, line, pointer);
    // The click is followed by presses that nobody gets.
    wait(0.2);
    press();
    wait(0.5);
    press();
    EXPECT_THAT(target_.events(), IsEmpty());
    expectNoScan();
    wait(1);
    begin();
}

TEST_F(ScannerTest, ASwitchThatIsHeldForTenSecondsEndsEverything) {
    PrefsRecord record = quickSettings();
    record.lineScanTime = 60;
    record.scanMode = 1;
    use(record);
    key(kScanKey, true);
    wait(9.5);
    EXPECT_THAT(agentWindows(), testing::SizeIs(1));
    wait(1);
    EXPECT_THAT(agentWindows(), IsEmpty());
    key(kScanKey, false);
    expectNoScan();
    use(quickSettings());
    scan();
}

TEST_F(ScannerTest, AnOpenMenuIsScannedByTheLineAlone) {
    PrefsRecord record = quickSettings();
    record.menuScanSpeedScaleFactor = 50;
    use(record);
    const int left = 100, top = 150, width = 200, height = 300;
    {
        TargetWindow menu(left, top, width, height);
        menu.openMenu();
        const Span start = press();
        wait(kDelay + 0.5);
        const Span line = press();
        const auto events = menu.events(3);
        ASSERT_EQ(events.size(), 3U);
        int y = 0; // it hears of motion, too
        ASSERT_EQ(std::sscanf(events[1].c_str(), "press 1 at 200,%d", &y), 1) << events[1];
        expectPlace(y - top, {height, 2 * record.lineScanTime * height / kHeight, false}, start,
                    line);
        EXPECT_THAT(agentWindows(), testing::SizeIs(1)) << "the menu";
    }
    target_.events();
    scan();
}

TEST_F(ScannerTest, LeavesTheKeysToThePaneThatAsks) {
    use(quickSettings());
    press();
    holdKeys(1);
    press();
    EXPECT_THAT(target_.events(2), ElementsAre("key 38 down", "key 38 up"));
    holdKeys(0);
    scan();
}

TEST_F(ScannerTest, WhateverTheRecordItGoesOn) {
    std::mt19937 random(1);
    for (int round = 0; round < 60; ++round) {
        PrefsRecord record;
        auto* const bytes = reinterpret_cast<UInt8*>(&record);
        std::generate_n(bytes, sizeof record, [&] { return static_cast<UInt8>(random()); });
        use(record);
        press();
        press(kSecondKey);
    }
    target_.events();
    use(quickSettings());
    wait(0.1);
    target_.events();
    scan();
}

/// Without devices: their connections end the test's process with the server.
class AgentAndServerTest : public AgentTest<QCoreApplication> {
protected:
    XvfbServer xvfb_;
};

TEST_F(AgentAndServerTest, EndTogether) {
    startAgent();
    xvfb_.kill();
    waitForNoAgent();
}

} // namespace
