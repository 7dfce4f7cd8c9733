// SPDX-License-Identifier: MIT
#include "src/store/history.h"

#include "src/record/settingwords.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

const Setting& settingOf(const SettingSet& settings) {
    return kSettings[firstOf(settings)];
}

TEST(HistoryTest, ChangesOfOneNumberWithinTwoSecondsAreOneStep) {
    PrefsRecord record;
    History history(record);
    const auto change = [&](double lineScanTime, double time) {
        record.lineScanTime = lineScanTime;
        history.note(record, time);
    };
    change(10.5, 100);
    change(11, 101.9);
    change(11.5, 103.8);
    change(12, 105.9); // later: a step of its own
    change(11.5, 107); // and back: nothing is left of that step
    record.soundLevel = 60;
    history.note(record, 107.5);
    change(12.5, 108);

    EXPECT_EQ(changesOf(history.undo(record)->settings), kChangeScanSpeed);
    EXPECT_EQ(double{record.lineScanTime}, 11.5);
    change(13, 108.5); // after an undo a change never joins what was before
    history.undo(record);
    EXPECT_EQ(double{record.lineScanTime}, 11.5);
    EXPECT_EQ(changesOf(history.undo(record)->settings), kChangeSounds);
    const HistoryStep* first = history.undo(record);
    EXPECT_EQ(
        changeText(settingOf(first->settings), first->after, first->before, kSettingBecomesAgain),
        "Line crosses the screen in: 11.5 back to 10.0 sec");
    EXPECT_FALSE(history.canUndo());
    const PrefsRecord factory;
    EXPECT_EQ(std::memcmp(&record, &factory, sizeof record), 0);
    EXPECT_EQ(double{history.redo(record)->after.lineScanTime}, 11.5);
    change(12, 104); // nor one that was redone
    history.undo(record);
    EXPECT_EQ(double{record.lineScanTime}, 11.5);
}

TEST(HistoryTest, StepsEndAndTheOldestGo) {
    PrefsRecord record;
    History history(record);
    for (int i = 1; i <= 1500; ++i) { // each later than the one before can join
        record.lineScanTime = i;
        history.note(record, 3 * i);
    }
    int steps = 0;
    for (; history.undo(record); ++steps)
        EXPECT_EQ(double{record.lineScanTime}, 1499 - steps);
    EXPECT_EQ(steps, 1000);
}

TEST(HistoryTest, WhatTheAgentReportsIsNoStepAndStays) {
    PrefsRecord record;
    History history(record);
    for (const UInt32 mode : {1U, 2U}) { // each choice is a step
        record.scanMode = mode;
        history.note(record, mode);
    }
    record.on = 0;
    history.follow(record);
    history.note(record, 2.5);
    history.undo(record);
    EXPECT_EQ(record.on, 0);
    EXPECT_EQ(record.scanMode, 1);
    history.redo(record);
    EXPECT_EQ(record.scanMode, 2);
    history.undo(record);
    record.useScanArea = 1;
    history.note(record, 3); // a change after an undo: no way forward any more
    EXPECT_FALSE(history.canRedo());
}

TEST(HistoryTest, TheUseOfAProfileIsAStepOfItsOwn) {
    PrefsRecord record;
    History history(record, "Morning");
    for (const auto& [time, profile] : {std::pair(11, "Morning"), {20, "Tired"}, {21, "Tired"}}) {
        record.lineScanTime = time;
        history.note(record, time / 100., profile);
    }
    history.undo(record);
    EXPECT_EQ(double{record.lineScanTime}, 20);
    EXPECT_EQ(history.undo(record)->profileBefore, "Morning");
    EXPECT_EQ(double{record.lineScanTime}, 11);
    EXPECT_EQ(history.redo(record)->profileAfter, "Tired");
    record.lineScanTime = 22;
    history.note(record, 9, "Tired");
    EXPECT_EQ(history.undo(record)->profileBefore, "Tired");
}

TEST(SettingWordsTest, EverySettingReadsInPeoplesWords) {
    PrefsRecord before, after;
    before.scanArea = {0, 10, 64, 48};
    after.on = 0;
    after.scanMode = 1;
    after.scanArea = {0, 10, 640, 480};
    after.lineColor = {0, 83, 138};
    after.menuScanSpeedScaleFactor = 65;
    after.lineThickness = 9;
    std::strcpy(before.pointerImageName, "Zeiger größer+20x20");
    std::strcpy(after.pointerImageName, "big\x8e");
    after.hotKeys[2] = {-1, 0};
    after.buttonSize = {.height = 50, .width = 60};
    after.buttonContent = 1;
    after.buttonActions[0] = 0;
    after.buttonActions[1] = 7;
    std::string texts;
    const SettingSet changed = differences(before, after);
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (changed[i])
            texts += changeText(kSettings[i], before, after, kSettingBecomes) + "\n";
    EXPECT_EQ(
        texts,
        "Scanning with Korvex: on to off\n"
        "Way of scanning: “Press to start, press to choose” to “Hold to scan, let go to choose”\n"
        "My own area: 64 × 48 at 0, 10 to 640 × 480 at 0, 10\n"
        "Speed in menus: 60% to 65%\n"
        "Line colour: Red (#640000) to Blue\n"
        "Line thickness: 7 to 9 points\n"
        "Pointer: “Zeiger größer” to “bigé”\n"
        "Cancel the scan (hot key): esc to none\n"
        "Size of the buttons: 40 × 40 to 60 × 50 points\n"
        "Show the name: on to off\n"
        "Palette button 1: “Action 20” to “Empty slot”; "
        "Palette button 2: “Action 21” to “Action 7”\n");
    before.buttonActions[4] = 9;
    EXPECT_EQ(changeText(kSettings.back(), before, after, kSettingBecomesAgain),
              "Palette buttons: “Action 20, Action 21, Action 22, Action 1, Action 9” back to "
              "“Action 7, Action 22, Action 1, Action 2”");
}

} // namespace
