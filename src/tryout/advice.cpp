// SPDX-License-Identifier: MIT
#include "src/tryout/advice.h"

#include "src/tryout/statistics.h"

#include <algorithm>
#include <cmath>

namespace tryout {

namespace {

constexpr double kOneInTwenty = 1.645; ///< normal quantiles of a risk
constexpr double kOneInHundred = 2.326;

/// The median absolute deviation scatters more than the standard deviation that the chi-square
/// bound is made for, of twelve values by about this factor at the bound. Found by simulation;
/// bench/TryoutSimulation.cpp shows what it achieves.
constexpr double kMedianDeviationAllowance = 1.3;
/// The standard error of a normal sample's median is this many spreads, divided by the square root
/// of the count.
constexpr double kMedianError = 1.2533;

struct Sample {
    std::vector<double> places; ///< in the order of the trials
    std::vector<double> markTimes, pressTimes, offsets;
};

Sample sampleOf(const Measured& measured) {
    Sample sample;
    for (const Trial& trial : measured.trials) {
        if (!trial.pressed)
            continue;
        sample.places.push_back(static_cast<double>(sample.places.size()));
        sample.markTimes.push_back(trial.markTime);
        sample.pressTimes.push_back(trial.markTime + trial.offset);
        sample.offsets.push_back(trial.offset);
    }
    return sample;
}

bool getsWorse(const Sample& sample, double lateness) {
    std::vector<double> distances;
    for (const double offset : sample.offsets)
        distances.push_back(std::abs(offset - lateness));
    return risesWith(sample.places, distances, kOneInHundred);
}

/// What is wrong with the presses themselves, before any speed is thought of.
std::optional<Verdict> objection(const Measured& measured, const Sample& sample, double lateness) {
    const std::size_t presses = sample.offsets.size(), extras = measured.extras.size();
    if (presses + extras == 0)
        return Verdict::NothingPressed;
    if (static_cast<double>(extras) >= kTooManyExtras * static_cast<double>(presses + extras))
        return Verdict::Unsteady;
    if (presses < kFewestTrials)
        return Verdict::TooFew;
    if (!risesWith(sample.markTimes, sample.pressTimes, kOneInTwenty))
        return Verdict::Random;
    if (getsWorse(sample, lateness))
        return Verdict::Tired;
    return {};
}

/// What is swept: by the line, or along it by the pointer.
struct Axis {
    Sweep sweep;
    double target, delay;

    double rateAt(double time, const Timing& timing) const {
        return hitRate(at(time), target, timing);
    }

    double timePerHitAt(double time, const Timing& timing) const {
        return timePerHit(at(time), target, timing, delay);
    }

private:
    Sweep at(double time) const { return {sweep.travel, time, sweep.accelerates}; }
};

Axis lineOf(const Conditions& tried) {
    return {tried.sweep, tried.target, tried.delay};
}

/// The least rate of hits that goes with nothing but hits in 95 of 100 tries; 0 after a miss.
double countedRate(const Advice& advice) {
    return advice.hits < advice.presses ? 0 : std::pow(0.05, 1.0 / advice.presses);
}

bool isWorthwhile(double time, const Axis& axis, const Timing& timing) {
    const double now = axis.sweep.time;
    return axis.rateAt(now, timing) < kQuickestRate ||
           axis.timePerHitAt(time, timing) <
               axis.timePerHitAt(now, timing) * (1 - kWorthwhileSaving);
}

void adviseOutOfReach(Advice& advice, const Conditions& tried) {
    Sweep slowest = tried.sweep;
    slowest.time = tried.times.max;
    advice.verdict = Verdict::OutOfReach;
    advice.neededTarget = neededWidth(slowest, advice.cautious, kQuickestRate);
    // Rates depend on width and travel by their quotient alone.
    advice.neededTravel = slowest.travel * tried.target / advice.neededTarget;
}

void adviseTime(Advice& advice, const Conditions& tried) {
    const double fastest = tried.times.roundUp(tried.sweep.time / kFastestForetold);
    const double slowest = std::max(tried.sweep.time / kSlowestForetold, fastest);
    const auto best =
        quickestTime(tried.sweep, tried.target, advice.cautious, tried.delay, tried.times);
    if (!best && slowest >= tried.times.max)
        return adviseOutOfReach(advice, tried);
    const double wanted = best.value_or(tried.times.max);
    const bool isSlower = wanted > tried.sweep.time;
    if ((isSlower && countedRate(advice) >= kQuickestRate) ||
        !isWorthwhile(wanted, lineOf(tried), advice.cautious))
        advice.verdict = Verdict::Keep;
    else if (wanted > slowest || wanted < fastest)
        advice.verdict = Verdict::TryAgain;
    else
        advice.verdict = Verdict::Change;
    if (advice.verdict != Verdict::Keep)
        advice.time = tried.times.roundUp(std::clamp(wanted, fastest, slowest));
    const auto surest = surestTime(tried.sweep, tried.target, advice.cautious, tried.times);
    if (surest && *surest >= fastest && *surest <= slowest)
        advice.surest = surest;
}

/// Its speeds are held against the line's: those are what the presses are known for.
void advisePointer(Advice& advice, const Conditions& tried) {
    const Axis axis = {*tried.pointer, tried.across, 0};
    advice.both = advice.expected * axis.rateAt(axis.sweep.time, advice.timing);
    const auto best =
        quickestTime(axis.sweep, axis.target, advice.cautious, axis.delay, tried.times);
    if (advice.verdict != Verdict::Keep || !best)
        return;
    const double speed = axis.sweep.travel / *best * tried.sweep.time / tried.sweep.travel;
    if (speed >= kSlowestForetold && speed <= kFastestForetold &&
        isWorthwhile(*best, axis, advice.cautious))
        advice.pointerTime = best;
}

} // namespace

Timing cautiousTiming(const Timing& measured, int presses) {
    const double spread =
        kMedianDeviationAllowance * spreadBound(std::max(measured.spread, kFinestSpread), presses);
    const double error = kMedianError * spread / std::sqrt(presses);
    return {measured.lateness + std::copysign(error, measured.lateness), spread};
}

Advice advise(const Measured& measured, const Conditions& tried) {
    const Sample sample = sampleOf(measured);
    Advice advice;
    advice.presses = static_cast<int>(sample.offsets.size());
    advice.hits = static_cast<int>(
        std::count_if(measured.trials.begin(), measured.trials.end(), [&](const Trial& trial) {
            return trial.pressed && std::abs(trial.miss) <= tried.target / 2;
        }));
    advice.time = tried.sweep.time;
    std::vector<double> offsets = measured.earlierOffsets;
    offsets.insert(offsets.end(), sample.offsets.begin(), sample.offsets.end());
    advice.timing = {median(offsets), spread(offsets)};
    if (advice.presses >= kFewestTrials)
        advice.cautious = cautiousTiming(advice.timing, static_cast<int>(offsets.size()));
    const auto wrong = objection(measured, sample, advice.timing.lateness);
    if (wrong) {
        advice.verdict = *wrong;
        return advice;
    }
    adviseTime(advice, tried);
    advice.expected = lineOf(tried).rateAt(advice.time, advice.timing);
    advice.promised = lineOf(tried).rateAt(advice.time, advice.cautious);
    if (advice.verdict == Verdict::Keep)
        advice.promised = std::max(advice.promised, countedRate(advice));
    advice.both = advice.expected;
    if (tried.pointer)
        advisePointer(advice, tried);
    return advice;
}

} // namespace tryout
