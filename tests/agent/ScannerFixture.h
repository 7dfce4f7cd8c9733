// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"
#include "src/record/PrefsRecord.h"
#include "src/scan/sweep.h"
#include "tests/agent/TargetWindow.h"
#include "tests/support/AgentTest.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/SignalProcess.h"
#include "tests/support/XvfbServer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <functional>

constexpr int kWidth = 800, kHeight = 600;
constexpr int kScanKey = 38, kSecondKey = 56; ///< of the server: A and B
constexpr int kEscape = 9, kX = 53;
constexpr double kDelay = 0.3;
constexpr double kStamp = 0.002; ///< s; the server's time stamps are whole milliseconds

/// When something happened: between two moments.
struct Span {
    double from, to;
};

/// Scans quickly, by keys that need no modifier, without a palette: only the lines are shown.
inline PrefsRecord quickSettings() {
    PrefsRecord record;
    record.preScanDelay = kDelay;
    record.lineScanTime = record.pointerScanTime = 2;
    record.useScanAcceleration = 0;
    record.wantMouseClickTrigger = 0;
    record.clickDuration = 10;
    record.inverseReleaseTime = 0.2;
    std::fill_n(record.buttonActions, kNumPaletteSlots, UInt8{0});
    record.hotKeys[1] = {0x00, 0}; // A
    record.hotKeys[4] = {0x0B, 0}; // B
    return record;
}

/// This process is taken for the pane.
inline bool isOn = true;

inline OSErr onOff(const AppleEvent* event, AppleEvent*, void*) {
    UInt8 state = 0;
    std::size_t size = 0;
    AEGetParamPtr(event, keyDirectObject, typeBoolean, nullptr, &state, sizeof state, &size);
    isOn = state != 0;
    return noErr;
}

/// The agent as a process, with a display server, a keyboard, a mouse and a window of its own.
class ScannerTest : public AgentTest<QCoreApplication> {
protected:
    ScannerTest() {
        AEInstallEventHandler(fourCharCode("Krvx"), fourCharCode("PPon"), onOff, nullptr);
        registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
        startAgent();
    }

    static void signalAgent(int signal) { signalProcess(agentPID(), signal); }

    static void waitForEnd(pid_t agent) {
        EXPECT_TRUE(QTest::qWaitFor([agent] { return agentPID() != agent && kill(agent, 0) != 0; },
                                    10'000));
    }

    static void tell(AEEventID id, std::map<AEKeyword, AEDesc> parameters) {
        EXPECT_EQ(
            sendAndWait(makeEvent(findAgent(), fourCharCode("Krvx"), id, std::move(parameters))),
            noErr);
    }

    void use(const PrefsRecord& record) {
        const UInt32 mask = 0xFFFF;
        AEDesc settings, changes;
        AECreateDesc(fourCharCode("KrPf"), &record, kRecordSize, &settings);
        AECreateDesc(typeUInt32, &mask, sizeof mask, &changes);
        tell(fourCharCode("SAPr"), {{keyDirectObject, settings}, {fourCharCode("Chng"), changes}});
        settings_ = record;
    }

    static void holdKeys(UInt8 hold) {
        AEDesc state;
        AECreateDesc(typeBoolean, &hold, sizeof hold, &state);
        tell(fourCharCode("PPhd"), {{keyDirectObject, state}});
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

    /// Control, shift, X.
    void onOffKey() {
        for (const int code : {37, 50, kX})
            key(code, true);
        for (const int code : {kX, 50, 37})
            key(code, false);
    }

    static void wait(double seconds) { QTest::qWait(static_cast<int>(seconds * 1000)); }

    /// A scan that is under way, its line on the screen.
    void begin() {
        press();
        wait(kDelay + 0.2);
        ASSERT_TRUE(waitForWindows(1));
    }

    /// The cancel key is the programs' only while nothing is scanned.
    void expectNoScan() {
        press(kEscape);
        EXPECT_THAT(target_.events(2), testing::ElementsAre("key 9 down", "key 9 up"));
        EXPECT_TRUE(waitForWindows(0));
    }

    /// What the agent shows: nobody else but the target has windows.
    std::vector<xcb_window_t> agentWindows() {
        xcb_connection_t* connection = target_.connection();
        const XReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, target_.root()), nullptr));
        std::vector<xcb_window_t> shown;
        for (int i = 0; tree && i < tree->children_len; ++i) {
            const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
            const auto cookie = xcb_get_window_attributes(connection, window);
            const XReply<xcb_get_window_attributes_reply_t> attributes(
                xcb_get_window_attributes_reply(connection, cookie, nullptr));
            if (window != target_.window() && attributes &&
                attributes->map_state == XCB_MAP_STATE_VIEWABLE)
                shown.push_back(window);
        }
        return shown;
    }

    bool waitForWindows(std::size_t count) {
        return QTest::qWaitFor([&] { return agentWindows().size() == count; });
    }

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
    void scan(const std::function<Span()>& click) {
        const Span start = click();
        wait(kDelay + 0.5);
        const Span line = click();
        wait(kDelay + 0.6);
        const Span pointer = click();
        expectClick(start, line, line, pointer);
    }

    void scan() {
        scan([this] { return press(); });
    }

    XvfbServer xvfb_{kWidth, kHeight};
    FakeDevice keyboard_{FakeDevice::Kind::Keyboard}, mouse_{FakeDevice::Kind::Mouse};
    TargetWindow target_{0, 0, kWidth, kHeight, false};
    PrefsRecord settings_;
};
