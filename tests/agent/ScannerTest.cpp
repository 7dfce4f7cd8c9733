// SPDX-License-Identifier: MIT
// The agent as a process, with a display server, a keyboard, a mouse and a window of its own.
#include "agent/x11/XServer.h"
#include "src/record/PrefsRecord.h"
#include "src/scan/sweep.h"
#include "tests/agent/TargetWindow.h"
#include "tests/support/AgentTest.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/XvfbServer.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <random>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kWidth = 800, kHeight = 600;
constexpr int kScanKey = 38, kSecondKey = 56; ///< of the server: A and B
constexpr int kEscape = 9, kX = 53;
constexpr double kDelay = 0.3;
constexpr double kStamp = 0.002; ///< s; the server's time stamps are whole milliseconds

/// When something happened: between two moments.
struct Span {
    double from, to;
};

/// Scans quickly, by keys that need no modifier.
PrefsRecord quickSettings() {
    PrefsRecord record;
    record.preScanDelay = kDelay;
    record.lineScanTime = record.pointerScanTime = 2;
    record.useScanAcceleration = 0;
    record.wantMouseClickTrigger = 0;
    record.clickDuration = 10;
    record.inverseReleaseTime = 0.2;
    record.hotKeys[1] = {0x00, 0}; // A
    record.hotKeys[4] = {0x0B, 0}; // B
    return record;
}

/// This process is taken for the pane.
bool isOn = true;

OSErr onOff(const AppleEvent* event, AppleEvent*, void*) {
    UInt8 state = 0;
    std::size_t size = 0;
    AEGetParamPtr(event, keyDirectObject, typeBoolean, nullptr, &state, sizeof state, &size);
    isOn = state != 0;
    return noErr;
}

class ScannerTest : public AgentTest<QCoreApplication> {
protected:
    ScannerTest() {
        AEInstallEventHandler(fourCharCode("Krvx"), fourCharCode("PPon"), onOff, nullptr);
        registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
        startAgent();
    }

    void use(const PrefsRecord& record) {
        const UInt32 mask = 0xFFFF;
        AEDesc settings, changes;
        AECreateDesc(fourCharCode("KrPf"), &record, sizeof record, &settings);
        AECreateDesc(typeUInt32, &mask, sizeof mask, &changes);
        EXPECT_EQ(
            sendAndWait(makeEvent(findAgent(), fourCharCode("Krvx"), fourCharCode("SAPr"),
                                  {{keyDirectObject, settings}, {fourCharCode("Chng"), changes}})),
            noErr);
        settings_ = record;
    }

    void holdKeys(UInt8 hold) {
        AEDesc state;
        AECreateDesc(typeBoolean, &hold, sizeof hold, &state);
        EXPECT_EQ(sendAndWait(makeEvent(findAgent(), fourCharCode("Krvx"), fourCharCode("PPhd"),
                                        {{keyDirectObject, state}})),
                  noErr);
    }

    Span key(int code, bool isDown) {
        const double from = XServer::now();
        keyboard_.key(code, isDown);
        return {from, XServer::now()};
    }

    /// A press of that length in seconds. When it began, or ended.
    Span press(int code = kScanKey, double length = 0.02, bool atEnd = false) {
        const Span down = key(code, true);
        wait(length);
        const Span up = key(code, false);
        return atEnd ? up : down;
    }

    static void wait(double seconds) { QTest::qWait(static_cast<int>(seconds * 1000)); }

    /// Whether the target's next event is a click whose coordinates the two sweeps had in these
    /// spans after their starts.
    void expectClick(Span lineStart, Span line, Span pointerStart, Span pointer) {
        const auto events = target_.events(2); // and the release
        ASSERT_FALSE(events.empty()) << "no click";
        int x = 0, y = 0;
        ASSERT_EQ(std::sscanf(events.front().c_str(), "press 1 at %d,%d", &x, &y), 2)
            << events.front();
        expectPlace(y, {kHeight, settings_.lineScanTime, settings_.useScanAcceleration != 0},
                    lineStart, line);
        expectPlace(x, {kWidth, settings_.pointerScanTime, settings_.useScanAcceleration != 0},
                    pointerStart, pointer);
    }

    void expectPlace(int place, const Sweep& sweep, Span start, Span stop) const {
        const double delay = settings_.preScanDelay;
        EXPECT_GE(place + 1, sweep.positionAt(stop.from - start.to - delay - kStamp));
        EXPECT_LE(place - 1, sweep.positionAt(stop.to - start.from - delay + kStamp));
    }

    /// A scan in automatic scanning, and the click that it makes.
    void scan() {
        const Span start = press();
        wait(kDelay + 0.5);
        const Span line = press();
        wait(kDelay + 0.6);
        const Span pointer = press();
        expectClick(start, line, line, pointer);
    }

    XvfbServer xvfb_{kWidth, kHeight};
    FakeDevice keyboard_{FakeDevice::Kind::Keyboard}, mouse_{FakeDevice::Kind::Mouse};
    TargetWindow target_{0, 0, kWidth, kHeight};
    PrefsRecord settings_;
};

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
    const auto begin = [&] {
        press();
        wait(kDelay + 0.2);
    };
    // Escape is the agent's only while it scans.
    begin();
    press(kEscape);
    EXPECT_THAT(target_.events(), IsEmpty());
    press(kEscape);
    EXPECT_THAT(target_.events(2), ElementsAre("key 9 down", "key 9 up"));

    // A line that nobody stops goes twice.
    PrefsRecord record = quickSettings();
    record.lineScanTime = 1;
    use(record);
    begin();
    wait(2 * (kDelay + record.lineScanTime));
    press(kEscape);
    EXPECT_THAT(target_.events(2), ElementsAre("key 9 down", "key 9 up"));

    // Switched off by its key, which is taken: the scan key is the programs' then.
    use(quickSettings());
    begin();
    for (const int code : {37, 50, kX}) // control, shift
        key(code, true);
    for (const int code : {kX, 50, 37})
        key(code, false);
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
