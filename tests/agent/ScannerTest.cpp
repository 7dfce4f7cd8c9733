// SPDX-License-Identifier: MIT
#include "tests/agent/ScannerFixture.h"

#include <algorithm>
#include <random>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Step scanning is what PaletteScanTest does.
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
    scan([this] { return press(kScanKey, 0.2, true); });

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
    scan([&] { return click(1); });

    // The other button cancels, and the scan is over.
    click(1);
    EXPECT_TRUE(waitForWindows(1));
    click(3);
    EXPECT_TRUE(waitForWindows(0));
    EXPECT_THAT(target_.events(), IsEmpty());
    click(3);
    EXPECT_THAT(target_.events(2).front(), testing::StartsWith("press 3"));
}

TEST_F(ScannerTest, EscapeIsTheAgentsOnlyWhileItScans) {
    use(quickSettings());
    begin();
    press(kEscape);
    EXPECT_THAT(target_.events(), IsEmpty());
    expectNoScan();
}

TEST_F(ScannerTest, IsSwitchedOffByItsKeyInEachState) {
    PrefsRecord record = quickSettings();
    record.clickDuration = 500;

    const struct {
        const char* name;
        SInt32 mode;
        int presses;
        double wait; ///< after the last one
    } kStates[] = {
        {"at rest", 0, 0, 0},
        {"before the line", 0, 1, 0},
        {"the line", 0, 1, kDelay + 0.2},
        {"the pointer", 0, 2, kDelay + 0.2},
        {"the click", 0, 3, 0.1},
        {"a line that is held on to", 1, 1, kDelay + 0.2},
        {"a band", 2, 1, 0},
    };

    for (const auto& state : kStates) {
        SCOPED_TRACE(state.name);
        record.scanMode = state.mode;
        use(record);
        for (int i = 0; i < state.presses; ++i) {
            wait(i > 0 ? kDelay + 0.2 : 0);
            state.mode == 1 ? key(kScanKey, true) : press();
        }
        wait(state.wait);
        onOffKey();
        EXPECT_TRUE(QTest::qWaitFor([] { return !isOn; }));
        EXPECT_TRUE(waitForWindows(0));
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
    const auto hasLine = [this](QRgb color) {
        const QImage image = screenshot(target_.connection());
        int y = 0;
        while (y < kHeight && image.pixel(kWidth / 2, y) != color)
            ++y;
        return y < kHeight;
    };
    PrefsRecord record = quickSettings();
    record.lineScanTime = 4;
    use(record);
    const Span start = press();
    wait(kDelay + 0.5);
    ASSERT_TRUE(hasLine(qRgb(100, 0, 0)));

    // The look at once, the speed from the next sweep on.
    record.lineColor = {0, 0, 255};
    record.lineScanTime = 2;
    record.pointerScanTime = 3;
    use(record);
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasLine(qRgb(0, 0, 255)); }));
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

TEST_F(ScannerTest, PressesRightAfterAClickAreNobodys) {
    PrefsRecord record = quickSettings();
    record.afterClickDelay = 1.5;
    use(record);
    scan();
    press();
    EXPECT_THAT(target_.events(), IsEmpty());
    expectNoScan();
    wait(1.5);
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
