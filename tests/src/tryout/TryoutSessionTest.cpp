// SPDX-License-Identifier: MIT
#include "src/tryout/advice.h"
#include "src/tryout/session.h"

#include <gtest/gtest.h>

using namespace tryout;
using Phase = Session::Phase;

namespace {

constexpr Sweep kSweep{.travel = 200, .time = 4};
constexpr double kDelay = 1.5, kOffset = 0.1, kHold = 0.3;

/// A user of whom each press is known.
struct Presses {
    Session session;
    Trigger trigger;
    double now = 1000;

    explicit Presses(const Trigger& how) : session(kSweep, 10, kDelay, how, 1), trigger(how) {}

    void press(double length) {
        session.press(now);
        session.release(now += length);
    }

    /// When the line set off that the last press has started.
    double started() const {
        return now + kDelay - (trigger.way == Trigger::Way::Release ? 0 : 0.3);
    }

    double moment() const { return kSweep.timeAt(session.mark()) + kOffset; }

    /// To the end of a sweep that is stopped kOffset after the mark.
    void sweep() {
        session.advance(now += 5);
        ASSERT_EQ(session.phase(), Phase::Ready);
        if (trigger.way == Trigger::Way::Hold)
            return press(kDelay + moment());
        press(kHold);
        // What counts is when the key goes down, has been down for long enough, or comes up.
        const bool isUp = trigger.way == Trigger::Way::Release;
        const double down = now - (isUp ? 0 : kHold - trigger.shortest) + kDelay + moment();
        now = down - (isUp ? kHold : trigger.shortest);
        press(kHold);
    }
};

} // namespace

TEST(TryoutSession, EachWayOfPressingStopsTheLineWhereItWas) {
    using enum Trigger::Way;
    const Trigger ways[] = {{Press}, {Release}, {Hold}, {Press, 0.2}, {Release, 0.2}};
    for (const Trigger& way : ways) {
        Presses user(way);
        for (int i = 0; i < kFreeSweeps + kMeasuredSweeps; ++i)
            user.sweep();
        user.session.advance(user.now += kSettlingTime);
        EXPECT_EQ(user.session.phase(), Phase::Done);
        const Measured& measured = user.session.measured();
        ASSERT_EQ(measured.trials.size(), 12U) << "the free sweeps aren't measured";
        EXPECT_TRUE(measured.extras.empty());
        bool isAtNearEdge = false;
        for (const Trial& trial : measured.trials) {
            const double room = kSweep.time - trial.markTime;
            EXPECT_NEAR(trial.offset, std::min(kOffset, room), 1e-6);
            EXPECT_NEAR(trial.miss, 50 * trial.offset, 1e-6);
            EXPECT_TRUE(way.way == Hold || std::abs(trial.hold - kHold) < 1e-6);
            const double untilNext = trial.ready + (way.way == Press ? kHold - way.shortest : 0);
            EXPECT_TRUE(&trial == &measured.trials.back() ||
                        (trial.ready > 4 && std::abs(trial.next - untilNext) < 1e-6));
            isAtNearEdge |= std::abs(trial.markTime - 0.1) < 1e-6;
        }
        EXPECT_TRUE(isAtNearEdge);
    }
}

TEST(TryoutSession, PressesThatNothingAskedForAreKeptApart) {
    const struct {
        const char* what;
        Trigger trigger;
        double gap, length;
        std::size_t extras, measured = 1;
    } rows[] = {
        {"a second press", {}, 0.2, 0.05, 1},
        {"one that the settings ignore", {.ignoreAfter = 1}, 0.2, 0.05, 0},
        {"one too short to count", {.shortest = 0.2}, 0.2, 0.05, 0},
        {"the start of the next sweep", {}, kSettlingTime + 0.1, 0.05, 0},
        {"a second press of a free sweep", {}, 0.2, 0.05, 0, 0},
    };

    for (const auto& row : rows) {
        Presses user(row.trigger);
        for (std::size_t i = 0; i < kFreeSweeps + row.measured; ++i)
            user.sweep();
        user.session.advance(user.now += row.gap);
        user.press(row.length);
        const Measured& measured = user.session.measured();
        EXPECT_EQ(measured.trials.size(), row.measured) << row.what;
        ASSERT_EQ(measured.extras.size(), row.extras) << row.what;
        if (row.extras > 0) {
            EXPECT_NEAR(measured.extras[0].gap, row.gap, 1e-6);
            EXPECT_NEAR(measured.extras[0].hold, row.length, 1e-6);
        }
    }
}

// Held on: with less, all goes on as ever.
TEST(TryoutSession, APressHeldForLongLeaves) {
    using enum Trigger::Way;

    const struct {
        const char* what;
        Trigger trigger;
        bool isOnItsWay; ///< the line, when the key goes down
        double needed;   ///< seconds
        Phase otherwise;
    } rows[] = {
        {"in a pause", {Press}, false, 4, Phase::Sweeping},
        {"during a sweep", {Press}, true, 4, Phase::Stopped},
        {"after the time that makes it count", {Press, 0.2}, false, 4.2, Phase::Sweeping},
        {"where the release counts", {Release, 0.2}, false, 4.2, Phase::Delay},
        {"beyond the sweep that a release would stop", {Release}, true, 7, Phase::Stopped},
        {"beyond the sweep that it moves", {Hold}, false, kDelay + 4 + 4, Phase::Stopped},
    };

    for (const auto& row : rows)
        for (const bool isLongEnough : {false, true})
            for (const std::size_t measured : {1, kFewestTrials}) {
                Presses user(row.trigger);
                for (std::size_t i = 0; i < kFreeSweeps + measured; ++i)
                    user.sweep();
                user.session.advance(user.now += 5);
                if (row.isOnItsWay) {
                    user.press(0.3);
                    user.session.advance(user.now = user.started() + 1);
                }
                user.press(row.needed + (isLongEnough ? 0.01 : -0.01));
                const Phase left = measured < kFewestTrials ? Phase::Left : Phase::Done;
                EXPECT_EQ(user.session.phase(), isLongEnough ? left : row.otherwise) << row.what;
                EXPECT_TRUE(!isLongEnough || user.session.measured().trials.size() == measured)
                    << row.what << ": what it measured counts";
                user.now += 1;
                user.press(5);
                EXPECT_TRUE(!isLongEnough || user.session.phase() == Phase::Left) << row.what;
            }
}

TEST(TryoutSession, AfterSweepsWithoutAPressOneLeaves) {
    for (const Phase outcome : {Phase::Ready, Phase::Left}) {
        Presses user({Trigger::Way::Release});
        for (int i = 0; i < kUnansweredSweeps; ++i) {
            EXPECT_EQ(user.session.phase(), Phase::Ready);
            user.press(0.1);
            user.session.advance(user.now += kDelay);
            EXPECT_EQ(user.session.phase(), Phase::Sweeping);
            user.session.advance(user.now += kSweep.time + 0.2);
            EXPECT_FALSE(user.session.last().pressed);
            user.session.advance(user.now += kSettlingTime);
        }
        EXPECT_EQ(user.session.phase(), Phase::Offer);
        Presses other = user;
        if (outcome == Phase::Left) {
            user.press(0.1);
            other.session.act(other.now);
            EXPECT_EQ(other.session.phase(), Phase::Left);
        }
        user.session.advance(user.now += kOfferTime);
        EXPECT_EQ(user.session.phase(), outcome);
    }
}

TEST(TryoutSession, AnAccessibilityActionPressesAndLetsGoInTurn) {
    Presses user({Trigger::Way::Hold});
    user.session.act(user.now);
    user.session.advance(user.now += kDelay + 1);
    EXPECT_EQ(user.session.phase(), Phase::Sweeping);
    user.session.act(user.now);
    EXPECT_EQ(user.session.phase(), Phase::Stopped);
    EXPECT_NEAR(user.session.linePosition(user.now + 9), 50, 1e-6);
    Presses other({Trigger::Way::Release, 0.5});
    other.session.act(other.now);
    EXPECT_EQ(other.session.phase(), Phase::Delay);
}
