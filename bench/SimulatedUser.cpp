// SPDX-License-Identifier: MIT
#include "bench/SimulatedUser.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kTrials = 12;
constexpr int kMostTries = 10;

double uniform(double low, double high, std::mt19937& random) {
    return std::uniform_real_distribution<>(low, high)(random);
}

/// The true rate of hits, of presses that are no lapses. `spread` is the one that was measured.
double trueRate(const tryout::Conditions& tried, const tryout::Timing& truth, double spread,
                double lineTime, double pointerTime) {
    const auto rateOf = [&](Sweep sweep, double time, double width) {
        sweep.time = time;
        const tryout::Target target = {width, tried.point, spread};
        return hitRate(sweep, target.widthFor(sweep), truth);
    };
    const double rate = rateOf(tried.sweep, lineTime, tried.target);
    return tried.pointer ? rate * rateOf(*tried.pointer, pointerTime, tried.across) : rate;
}

/// Whether the true rates, of line and pointer, are what was promised.
bool keepsPromise(const tryout::Advice& advice, const tryout::Conditions& tried,
                  const tryout::Timing& truth) {
    const double pointerTime = tried.pointer ? advice.pointerTime.value_or(tried.pointer->time) : 0;
    const double spread = advice.timing.spread;
    if (trueRate(tried, truth, spread, advice.time, pointerTime) < tryout::kQuickestRate)
        return false;
    return !advice.surest || trueRate(tried, truth, spread, advice.surest->line.time,
                                      advice.surest->pointer.time) >= tryout::kSurestRate;
}

} // namespace

const SimulatedUser kSimulatedUsers[12] = {
    {"quick and even", {0, 0.05}},
    {"even", {0.05, 0.1}},
    {"late by a constant", {0.3, 0.1}},
    {"early", {-0.2, 0.15}},
    {"shaky", {0.1, 0.2}},
    {"very shaky", {0, 0.3}},
    {"lapses 1 in 12", {0.1, 0.1}, 1.0 / 12},
    {"lapses, double presses", {0.1, 0.15}, 1.0 / 12, 0.1},
    {"without any spread", {0.05, 0}},
    {.who = "never presses", .timing = {1e9, 0}, .verdict = tryout::Verdict::NothingPressed},
    {.who = "presses at random", .timing = {}, .strays = 1, .verdict = tryout::Verdict::Random},
    {.who = "gets tired", .timing = {0, 0.05}, .tiring = 0.35, .verdict = tryout::Verdict::Tired},
};

tryout::Conditions simulatedConditions() {
    return {.sweep = {.travel = 300, .time = 10},
            .target = 10,
            .delay = 1.5,
            .pointer = Sweep{.travel = 530, .time = 10}};
}

double pressTime(const SimulatedUser& user, const Sweep& sweep, double markTime, double spread,
                 std::mt19937& random) {
    const double kind = uniform(0, 1, random);
    if (kind < user.lapses)
        return uniform(0, 2 * sweep.time, random); // half of them are none: the sweep is over
    if (kind < user.lapses + user.strays)
        return uniform(0, sweep.time, random);
    return markTime + user.timing.lateness + spread * std::normal_distribution<>()(random);
}

tryout::Measured simulateTry(const SimulatedUser& user, const tryout::Conditions& conditions,
                             std::mt19937& random) {
    const Sweep& sweep = conditions.sweep;
    std::vector<double> marks;
    for (int i = 0; i < kTrials; ++i)
        marks.push_back(sweep.travel * (i + 0.5) / kTrials);
    std::shuffle(marks.begin(), marks.end(), random);

    tryout::Measured measured;
    double spread = user.timing.spread;
    for (const double mark : marks) {
        tryout::Trial trial{.markTime = sweep.timeAt(mark)};
        const double press = std::max(pressTime(user, sweep, trial.markTime, spread, random), 0.0);
        spread *= 1 + user.tiring;
        trial.pressed = press < sweep.time;
        if (trial.pressed) {
            trial.offset = press - trial.markTime;
            trial.miss = sweep.positionAt(press) - mark;
            trial.next = uniform(1, 12, random); // some rest
            if (uniform(0, 1, random) < user.doublePresses)
                measured.extras.push_back({uniform(0.1, 0.4, random), 0.05});
        }
        measured.trials.push_back(trial);
    }
    return measured;
}

SimulatedRun simulateRun(const SimulatedUser& user, tryout::Conditions conditions,
                         std::mt19937& random) {
    SimulatedRun run;
    tryout::Earlier earlier;
    while (run.tries++ < kMostTries) {
        tryout::Measured measured = simulateTry(user, conditions, random);
        measured.earlier = earlier;
        const tryout::Advice advice = tryout::advise(measured, conditions);
        using enum tryout::Verdict;
        if (run.tries == 1)
            run.first = advice.verdict;
        if (advice.verdict == OutOfReach || user.verdict)
            return run;
        const bool isPromised = !conditions.pointer || advice.pointerTime;
        const bool isKept = isPromised && keepsPromise(advice, conditions, user.timing);
        if (advice.verdict == Keep) {
            run.advised = isPromised;
            run.kept = isKept;
            run.time = advice.time;
            run.pointerTime = advice.pointerTime.value_or(0);
            return run;
        }
        if (advice.verdict == Change && isPromised && !run.isChanged) {
            run.isChanged = true;
            run.isChangeKept = isKept;
        }
        conditions.sweep.time = advice.time;
        remember(earlier, measured, conditions);
    }
    return run;
}
