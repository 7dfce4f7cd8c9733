// SPDX-License-Identifier: MIT
#include "bench/SimulatedUser.h"
#include "src/tryout/statistics.h"
#include "src/tryout/suggestions.h"
#include "src/tryout/tryconditions.h"
#include "src/tryout/words.h"

#include <gtest/gtest.h>

#include <map>

using namespace tryout;

TEST(TryoutSums, RatesAndNeededTimesAreTheReferenceNumbers) {
    const struct {
        double spread, width, rate, needed;
    } rows[] = {{0.05, 24, 0.79, 13}, {0.05, 44, 0.98, 7}, {0.05, 100, 1.0, 3},
                {0.1, 24, 0.47, 26},  {0.1, 44, 0.75, 14}, {0.1, 100, 0.99, 6},
                {0.2, 24, 0.25, 53},  {0.2, 44, 0.43, 29}, {0.2, 100, 0.81, 13}};

    const Sweep sweep{.travel = 1920, .time = 10};
    for (const auto& row : rows) {
        EXPECT_NEAR(hitRate(sweep, row.width, {0, row.spread}), row.rate, 0.006);
        const auto times = ratedTimes(sweep, {row.width}, {0, row.spread}, {1, 60, 0.1});
        EXPECT_NEAR(surestTimes(times, kNoPointer).value_or(Click()).line.time, row.needed, 0.55)
            << row.spread << ' ' << row.width;
    }
    EXPECT_NEAR(hitRate(sweep, 24, {0.1, 0.1}), 0.30, 0.005);
    EXPECT_FALSE(surestTimes(ratedTimes(sweep, {24}, {0, 0.2}, {1, 50, 0.5}), kNoPointer));
}

TEST(TryoutSums, ALineThatSpeedsUpPassesEveryPlaceWhenItSays) {
    const Sweep sweep{.travel = 300, .time = 8, .accelerates = true};
    for (const double place : {0.0, 20.0, 150.0, 300.0})
        EXPECT_NEAR(sweep.positionAt(sweep.timeAt(place)), place, 1e-9);
    EXPECT_NEAR(sweep.speedAt(100) * 0.002,
                sweep.positionAt(sweep.timeAt(100) + 0.001) -
                    sweep.positionAt(sweep.timeAt(100) - 0.001),
                1e-5);
    EXPECT_LT(sweep.speedAt(0), sweep.speedAt(300));
}

// The expected numbers are of a program of its own.
TEST(TryoutSums, TheTimesOfBothAxesAreTheQuickestAndTheShortest) {
    const SettingRange range{1, 60, 0.5};
    const auto line = ratedTimes({1080, 1}, {24}, {0, 0.1}, range);
    const auto pointer = ratedTimes({1920, 1}, {24}, {0, 0.1}, range);
    const Click quickest = quickestTimes(line, pointer, {1.5, 4}).value_or(Click());
    EXPECT_DOUBLE_EQ(quickest.line.time, 16);
    EXPECT_DOUBLE_EQ(quickest.pointer.time, 23.5);
    EXPECT_NEAR(quickest.rate(), 0.79336, 1e-5);
    EXPECT_NEAR(timePerHit(quickest, {1.5, 4}), 27.8265, 1e-4);
    const Click surest = surestTimes(line, pointer).value_or(Click());
    EXPECT_DOUBLE_EQ(surest.time(), 48.5);
    EXPECT_NEAR(surest.rate(), 0.90046, 1e-5);
}

// A short run of bench/TryoutSimulation.cpp, with room for chance: a bound too low shows at once.
TEST(TryoutSums, TheAdvisedTimeKeepsItsPromise) {
    std::mt19937 random(7);
    double times[2] = {};
    for (const bool snaps : {false, true}) {
        tryout::Conditions conditions = simulatedConditions();
        conditions.point = snaps ? 0.28 : 0;
        int advised = 0, kept = 0;
        for (const int user : {0, 1, 3, 6, 7, 8})
            for (int i = 0; i < 60; ++i) {
                const auto run = simulateRun(kSimulatedUsers[user], conditions, random);
                advised += run.advised;
                kept += run.kept;
                times[snaps] += run.time;
            }
        EXPECT_GE(advised, snaps ? 320 : 340); // a fast pointer is beyond what was tried
        EXPECT_GE(kept, 0.95 * advised) << snaps;
    }
    EXPECT_LT(times[true], 0.8 * times[false]) << "what snaps is hit with a faster line";
}

namespace {

/// Twelve presses: `offset` gives the lateness at the place of one in the order.
template <typename Offset>
Measured tryOf(Offset offset, int count = 12) {
    Measured measured;
    for (int i = 0; i < 12; ++i) {
        Trial trial{.markTime = (i * 5 % 12) * 0.8};
        trial.pressed = i < count;
        if (trial.pressed) {
            trial.offset = offset(i);
            trial.miss = trial.offset * 50;
            trial.hold = 0.3;
        }
        measured.trials.push_back(trial);
    }
    return measured;
}

Measured withExtras(Measured measured, int count) {
    for (int i = 0; i < count; ++i)
        measured.extras.push_back({0.15 + 0.05 * i, 0.08});
    return measured;
}

const auto kEven = [](int i) { return i % 2 == 0 ? 0.06 : -0.06; };
const auto kUneven = [](int i) { return i % 6 == 1 ? 0.15 : kEven(i); };
const Conditions kLineAlone = {.sweep = {.travel = 500, .time = 10}, .delay = 1.5};

} // namespace

TEST(TryoutAdvice, EachKindOfUserGetsWordsOfTheirOwn) {
    const auto late = [](int i) { return 1.2 + (i % 3) * 0.2; };

    const struct {
        const char* who;
        Measured measured;
        double tried;
        Verdict verdict;
        double time;
        const char* words;
    } rows[] = {
        {"few", tryOf(kEven, 7), 10, Verdict::TooFew, 10, "7 of 12 sweeps"},
        {"doubles", withExtras(tryOf(kEven), 4), 10, Verdict::Unsteady, 10, "4 of 16 presses"},
        {"no spread", tryOf([](int) { return 0.05; }), 10, Verdict::Change, 7, "same moment"},
        {"quick", tryOf([](int i) { return i % 2 == 0 ? 0.01 : -0.01; }), 20, Verdict::TryAgain,
         13.5, "quicker line"},
        {"even", tryOf(kEven), 12, Verdict::Keep, 12,
         "12.0 seconds suits you: we expect 8 in 10, at least 7"},
        {"uneven", withExtras(tryOf(kUneven), 3), 12, Verdict::Change, 19.5,
         "in 10 of 12 sweeps. At 19.5 seconds we expect 9 in 10, at least 8. At 12.0 seconds, as "
         "it "
         "is now: 8 in 10, at least 5."},
        {"slow", tryOf(late), 10, Verdict::TryAgain, 20, "slower line"},
        {"slowest", tryOf(late), 40, Verdict::OutOfReach, 40, "Even at 60 seconds"},
    };

    for (const auto& row : rows) {
        Conditions tried = kLineAlone;
        tried.sweep.time = row.tried;
        const Advice advice = advise(row.measured, tried);
        EXPECT_EQ(advice.verdict, row.verdict) << row.who;
        EXPECT_DOUBLE_EQ(advice.time, row.time) << row.who;
        const std::string words = resultText(advice, tried, row.measured, Trigger::Way::Press);
        EXPECT_NE(words.find(row.words), std::string::npos) << row.who << ": " << words;
        const std::string details = detailsText(advice, {});
        EXPECT_EQ(details.find("9 in 10"),
                  advice.surest ? details.find("At least 9") + 9 : details.npos)
            << "a lower bound is called one: " << details;
    }
}

TEST(TryoutAdvice, WhoCannotBeAdvisedIsToldWhy) {
    const std::map<Verdict, const char*> reasons = {{Verdict::NothingPressed, "nothing stopped it"},
                                                    {Verdict::Random, "other moments"},
                                                    {Verdict::Tired, "rest"}};
    const Conditions tried = simulatedConditions();
    std::mt19937 random(3);
    for (const SimulatedUser& user : kSimulatedUsers) {
        int told = 0;
        for (int i = 0; user.verdict && i < 40; ++i) {
            const Measured measured = simulateTry(user, tried, random);
            const Advice advice = advise(measured, tried);
            const std::string words = resultText(advice, tried, measured, Trigger::Way::Press);
            told += advice.verdict == *user.verdict &&
                    words.find(reasons.at(advice.verdict)) != std::string::npos;
        }
        EXPECT_TRUE(!user.verdict || told >= 24) << user.who << ": " << told;
    }
}

TEST(TryoutAdvice, APointerAlongTheLineMultiplies) {
    Conditions tried = kLineAlone;
    tried.pointer = Sweep{.travel = 500, .time = 9};
    tried.across = 40; // no press for it misses
    Measured measured = tryOf(kEven);
    tried.sweep.time = 12;
    Advice advice = advise(measured, tried);
    EXPECT_DOUBLE_EQ(advice.pointerTime.value_or(0), 9) << "it will do";
    EXPECT_DOUBLE_EQ(advice.clicks, advice.expected * hitRate(*tried.pointer, 40, advice.timing));
    tried.across = 400;
    tried.pointer->time = 7; // faster than any line that was tried
    std::string words = resultText(advise(measured, tried), tried, measured, Trigger::Way::Press);
    EXPECT_NE(words.find("too far from"), std::string::npos) << words;

    tried.pointer->time = 12;
    tried.across = 10;
    tried.sweep.time = 20;
    advice = advise(measured, tried);
    EXPECT_EQ(advice.verdict, Verdict::Keep);
    ASSERT_GT(advice.pointerTime.value_or(0), 12);
    EXPECT_GE(advice.promised * hitRate({500, *advice.pointerTime}, 10, advice.cautious),
              kQuickestRate);
    words = resultText(advice, tried, measured, Trigger::Way::Step);
    EXPECT_NE(words.find("s instead of 12.0: "), std::string::npos) << words;
    EXPECT_NE(words.find("one step a press"), std::string::npos) << words;

    measured = tryOf(kUneven);
    tried.sweep.time = 16;
    Conditions alone = tried;
    alone.pointer.reset();
    EXPECT_GT(advise(measured, tried).time, advise(measured, alone).time)
        << "both together are to reach what one alone did";
    tried.pointer->travel = 5000;
    tried.sweep.time = 60;
    advice = advise(measured, tried);
    EXPECT_EQ(advice.verdict, Verdict::OutOfReach);
    words = resultText(advice, tried, measured, Trigger::Way::Press);
    EXPECT_NE(words.find("3 clicks in 4"), std::string::npos) << words;
}

// A scan waits before the line and before the pointer, and an own area is swept in its part of the
// time: the less of the time for a hit is in the sweeps, the slower they may be.
TEST(TryoutAdvice, BothWaitsAndTheSweptPartAreReckonedWith) {
    Conditions tried = kLineAlone;
    tried.pointer = Sweep{.travel = 500, .time = 15};
    tried.sweep.time = 14; // too fast to stay
    const Measured measured = tryOf(kUneven);
    const Timing timing = advise(measured, tried).cautious;
    const auto lineWith = [&](double delay, double part) {
        const auto line = ratedTimes(tried.sweep, {tried.target}, timing, tried.times, part);
        const auto pointer = ratedTimes(*tried.pointer, {tried.across}, timing, tried.times, part);
        return quickestTimes(line, pointer, {delay, kCostOfMiss}).value_or(Click()).line.time;
    };
    for (const auto& [delay, part] : {std::pair{1.5, 1.0}, {10.0, 1.0}, {1.5, 0.25}}) {
        tried.delay = delay;
        tried.linePart = tried.pointerPart = part;
        EXPECT_DOUBLE_EQ(advise(measured, tried).time, lineWith(2 * delay, part)) << delay << part;
    }
    EXPECT_LT(lineWith(10, 1), lineWith(20, 1));
    EXPECT_LT(lineWith(3, 1), lineWith(3, 0.25));
}

TEST(TryoutAdvice, WhatAMissCostsIsMeasuredWhereThereAreEnough) {
    Measured measured = tryOf([](int i) { return i < 3 ? 0.15 : 0.02 * (i % 3); });
    EXPECT_FALSE(advise(measured, kLineAlone).costOfMiss);
    for (Trial& trial : measured.trials)
        trial.next = 2 + trial.markTime;
    const Advice dear = advise(measured, kLineAlone);
    EXPECT_DOUBLE_EQ(dear.costOfMiss.value_or(0), 6) << "the middle one of three";
    EXPECT_NE(detailsText(dear, {}).find("took 6.0 seconds to go on"), std::string::npos);
    measured.trials[1].next = 0;
    EXPECT_FALSE(advise(measured, kLineAlone).costOfMiss);
    remember(measured.earlier, measured, kLineAlone);
    EXPECT_TRUE(advise(measured, kLineAlone).costOfMiss) << "with those of the try before";
}

TEST(TryoutAdvice, WhatIsTriedIsAsSet) {
    constexpr Extent kPoints = {1920, 1080}, kMillimetres = {480, 270};
    PrefsRecord record;
    record.buttonSize = {80, 40};

    for (const auto& [choice, target, across] : {std::tuple{kUsualTarget, 10, 10},
                                                 {kPaletteTarget, 20, 10},
                                                 {15U, 15, 15},
                                                 {99U, 10, 10}}) {
        const Conditions tried = conditionsOf(record, kPoints, kMillimetres, choice);
        EXPECT_DOUBLE_EQ(tried.target, target);
        EXPECT_DOUBLE_EQ(tried.across, across);
        EXPECT_DOUBLE_EQ(tried.point, choice == kPaletteTarget ? 0 : 0.25)
            << "the palette's don't snap";
    }
    EXPECT_EQ(nextTarget(10.6, true), 11U);
    EXPECT_EQ(nextTarget(10.6, false), kUsualTarget);
    EXPECT_EQ(nextTarget(3, false), kLeastTarget);

    record.pointerScanTime = 17;
    Conditions tried = conditionsOf(record, kPoints, kMillimetres, kUsualTarget);
    EXPECT_DOUBLE_EQ(tried.sweep.travel, 270);
    EXPECT_DOUBLE_EQ(tried.pointer.value().travel, 480);
    EXPECT_DOUBLE_EQ(tried.pointer.value().time, 17);
    record.useScanArea = 1;
    record.scanMode = 1;
    record.scanArea = {0, 0, 960, 2000};
    tried = conditionsOf(record, kPoints, kMillimetres, kUsualTarget);
    EXPECT_DOUBLE_EQ(tried.sweep.travel, 270);
    EXPECT_DOUBLE_EQ(tried.linePart, 1);
    EXPECT_DOUBLE_EQ(tried.pointer.value().travel, 480) << "half of it, in half of the time";
    EXPECT_DOUBLE_EQ(tried.pointerPart, 0.5);
    EXPECT_EQ(triggerOf(record).way, Trigger::Way::Hold);
    record.scanMode = 2;
    EXPECT_FALSE(conditionsOf(record, kPoints, kMillimetres, kUsualTarget).pointer);
    EXPECT_EQ(triggerOf(record).way, Trigger::Way::Step);
}

TEST(TryoutAdvice, SteadinessIsMeasuredWhereThereWasSomething) {
    Steadiness found = steady(tryOf(kEven));
    EXPECT_FALSE(found.minTriggerDuration || found.afterClickDelay || found.preScanDelay);
    Measured measured = withExtras(tryOf(kEven), 3);
    measured.trials[0].ready = 1.23;
    found = steady(measured);
    EXPECT_DOUBLE_EQ(found.minTriggerDuration.value_or(0), 0.1);
    EXPECT_DOUBLE_EQ(found.afterClickDelay.value_or(0), 0.3);
    EXPECT_DOUBLE_EQ(found.preScanDelay.value_or(0), 1.3);
    PrefsRecord record;
    Advice advice;
    const auto key = [&] {
        const auto suggestion = suggestionOf(advice, found, record);
        return suggestion ? std::string(suggestion->setting->key) : "";
    };
    EXPECT_EQ(key(), "scanner.afterClickDelay");
    record.afterClickDelay = 0.3;
    EXPECT_EQ(key(), "scanner.minTriggerDuration");
    record.minTriggerDuration = 0.1;
    EXPECT_EQ(key(), "") << "the wait is longer than that";
    record.preScanDelay = 0;
    EXPECT_EQ(key(), "scanner.preScanDelay");
    advice.pointerTime = 8;
    EXPECT_EQ(key(), "scanner.pointerScanTime");
    advice.verdict = Verdict::Change;
    EXPECT_EQ(key(), "") << "the line's time first";
    advice = {};
    found.preScanDelay = 30; // more than can be set
    EXPECT_EQ(key(), "");
    measured.trials[1].ready = 1;
    measured.trials[2].ready = 2.5; // a rest
    EXPECT_FALSE(steady(measured).preScanDelay);
    measured.extras[1].hold = 0.4;
    found = steady(measured);
    EXPECT_TRUE(found.holdsOverlap && !found.minTriggerDuration);
    EXPECT_NE(detailsText({}, found).find("tells them apart"), std::string::npos);
}
