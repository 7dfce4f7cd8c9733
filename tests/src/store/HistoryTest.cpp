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

} // namespace
