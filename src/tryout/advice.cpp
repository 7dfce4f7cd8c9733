// SPDX-License-Identifier: MIT
#include "src/tryout/advice.h"

#include "src/tryout/statistics.h"

#include <algorithm>
#include <cmath>

namespace tryout {

namespace {

constexpr double kOneInTwenty = 1.645; ///< normal quantiles of a risk
constexpr double kOneInHundred = 2.326;

/// The chi-square bound is made for the standard deviation. An estimate from pairs varies a little
/// more and needs about this factor. It was found by simulation; bench/TryoutSimulation.cpp shows
/// what it achieves.
constexpr double kPairsAllowance = 1.1;
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

/// What is wrong with the presses themselves, whatever the speed.
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

bool isMiss(const Trial& trial, const Conditions& tried) {
    return trial.pressed && std::abs(trial.miss) > tried.target / 2;
}

/// A sweep's time and its share of hits.
RatedTime rated(Sweep sweep, double time, const Target& target, const Timing& timing,
                double part = 1) {
    sweep.time = time;
    return {time, hitRate(sweep, target.widthFor(sweep), timing), part};
}

/// The target as the line and the pointer meet it, with the spread that the try measured.
Target lineTarget(const Conditions& tried, const Advice& advice) {
    return {tried.target, tried.point, advice.timing.spread};
}

Target pointerTarget(const Conditions& tried, const Advice& advice) {
    return {tried.across, tried.point, advice.timing.spread};
}

/// Whether the speed of the pointer is close enough to the line speeds that were tried.
bool isForetold(const Earlier& known, const Sweep& pointer, double time) {
    const auto [slowest, fastest] = std::minmax_element(known.speeds.begin(), known.speeds.end());
    const double speed = pointer.travel / time;
    return speed >= kSlowestForetold * *slowest && speed <= kFastestForetold * *fastest;
}

/// The lowest rate of hits with which 95 of 100 tries may have hits only. 0 after a miss.
double countedRate(const Advice& advice) {
    return advice.hits < advice.presses ? 0 : std::pow(0.05, 1.0 / advice.presses);
}

/// The possible choices, rated with the cautious timing.
struct Choices {
    std::vector<RatedTime> line, pointer;
    RatedTime tried; ///< the line's time
    Waits waits;

    bool isWorthwhile(const Click& better, const Click& now) const {
        return now.rate() < kQuickestRate ||
               timePerHit(better, waits) < timePerHit(now, waits) * (1 - kWorthwhileSaving);
    }

    /// Whether no other time for the line, with the pointer's time for it, is better by enough.
    bool isTriedRight(const std::optional<Click>& best) const {
        const auto kept = quickestTimes({&tried, 1}, pointer, waits);
        return kept && !(best && isWorthwhile(*best, *kept));
    }
};

Choices choicesOf(const Advice& advice, const Conditions& tried) {
    const Timing& timing = advice.cautious;
    const Target target = lineTarget(tried, advice);
    Choices choices = {
        .line = ratedTimes(tried.sweep, target, timing, tried.times, tried.linePart),
        .pointer = {std::begin(kNoPointer), std::end(kNoPointer)},
        .tried = rated(tried.sweep, tried.sweep.time, target, timing, tried.linePart),
        .waits = {tried.delay * (tried.pointer ? 2 : 1), advice.costOfMiss.value_or(kCostOfMiss)}};
    if (tried.pointer)
        choices.pointer = ratedTimes(*tried.pointer, pointerTarget(tried, advice), timing,
                                     tried.times, tried.pointerPart);
    choices.tried.rate = std::max(choices.tried.rate, countedRate(advice));
    return choices;
}

void adviseOutOfReach(Advice& advice, const Conditions& tried) {
    std::vector<Axis> axes = {{tried.sweep, lineTarget(tried, advice)}};
    if (tried.pointer)
        axes.push_back({*tried.pointer, pointerTarget(tried, advice)});
    for (Axis& axis : axes)
        axis.sweep.time = tried.times.max;
    advice.verdict = Verdict::OutOfReach;
    advice.enlargement = neededEnlargement(axes, advice.cautious, kQuickestRate);
}

void adviseTime(Advice& advice, const Conditions& tried, const Choices& choices,
                const Earlier& known) {
    const double fastest = tried.times.roundUp(tried.sweep.time / kFastestForetold);
    const double slowest = std::max(tried.sweep.time / kSlowestForetold, fastest);
    const auto best = quickestTimes(choices.line, choices.pointer, choices.waits);
    const double wanted = best ? best->line.time : tried.times.max;
    if (choices.isTriedRight(best))
        advice.verdict = Verdict::Keep;
    else if (!best && slowest >= tried.times.max)
        return adviseOutOfReach(advice, tried);
    else if (wanted > slowest || wanted < fastest)
        advice.verdict = Verdict::TryAgain;
    else
        advice.verdict = Verdict::Change;
    if (advice.verdict != Verdict::Keep)
        advice.time = tried.times.roundUp(std::clamp(wanted, fastest, slowest));
    const auto surest = surestTimes(choices.line, choices.pointer);
    if (surest && surest->line.time >= fastest && surest->line.time <= slowest &&
        (!tried.pointer || isForetold(known, *tried.pointer, surest->pointer.time)))
        advice.surest = surest;
}

/// The set time stays unless another one that can be predicted is better by enough.
void advisePointer(Advice& advice, const Conditions& tried, Choices& choices,
                   const Earlier& known) {
    const RatedTime line = {advice.time, advice.promised, tried.linePart};
    const Target target = pointerTarget(tried, advice);
    const RatedTime set =
        rated(*tried.pointer, tried.pointer->time, target, advice.cautious, tried.pointerPart);
    std::erase_if(choices.pointer, [&](const RatedTime& pointer) {
        return !isForetold(known, *tried.pointer, pointer.time);
    });
    const auto best = quickestTimes({&line, 1}, choices.pointer, choices.waits);
    const RatedTime suits = best && choices.isWorthwhile(*best, {line, set}) ? best->pointer : set;
    if (!isForetold(known, *tried.pointer, suits.time))
        return;
    advice.pointerTime = suits.time;
    advice.clicksPromised = line.rate * suits.rate;
    advice.clicks = advice.expected * rated(*tried.pointer, suits.time, target, advice.timing).rate;
}

/// For tries without objections.
void adviseTimes(Advice& advice, const Conditions& tried, const Earlier& known) {
    const Target target = lineTarget(tried, advice);
    Choices choices = choicesOf(advice, tried);
    adviseTime(advice, tried, choices, known);
    advice.expected = rated(tried.sweep, advice.time, target, advice.timing).rate;
    advice.promised = rated(tried.sweep, advice.time, target, advice.cautious).rate;
    advice.expectedNow = rated(tried.sweep, tried.sweep.time, target, advice.timing).rate;
    advice.promisedNow = choices.tried.rate;
    if (advice.verdict == Verdict::Keep)
        advice.promised = advice.promisedNow;
    if (tried.pointer && (advice.verdict == Verdict::Keep || advice.verdict == Verdict::Change))
        advisePointer(advice, tried, choices, known);
}

} // namespace

// Only users whose presses look even enough get advice, among them those whose median absolute
// deviation came out too small by chance: for few values it varies a lot. It is rarely too small
// together with the estimate from pairs, so the larger bound counts.
Timing cautiousTiming(std::span<const double> offsets) {
    const int presses = static_cast<int>(offsets.size());
    const double least =
        std::max({spread(offsets), kPairsAllowance * spreadOfPairs(offsets), kFinestSpread});
    const double bound = spreadBound(least, presses);
    const double lateness = median(offsets), error = kMedianError * bound / std::sqrt(presses);
    return {lateness + std::copysign(error, lateness), bound};
}

void remember(Earlier& earlier, const Measured& measured, const Conditions& tried) {
    for (const Trial& trial : measured.trials) {
        if (trial.pressed)
            earlier.offsets.push_back(trial.offset);
        if (isMiss(trial, tried) && trial.next > 0)
            earlier.costs.push_back(trial.next);
    }
    earlier.speeds.push_back(tried.sweep.travel / tried.sweep.time);
}

Advice advise(const Measured& measured, const Conditions& tried) {
    const Sample sample = sampleOf(measured);
    Advice advice;
    advice.presses = static_cast<int>(sample.offsets.size());
    advice.hits =
        advice.presses -
        static_cast<int>(std::count_if(measured.trials.begin(), measured.trials.end(),
                                       [&](const Trial& trial) { return isMiss(trial, tried); }));
    advice.time = tried.sweep.time;
    Earlier known = measured.earlier;
    remember(known, measured, tried);
    advice.timing = {median(known.offsets), spread(known.offsets)};
    if (advice.presses >= kFewestTrials)
        advice.cautious = cautiousTiming(known.offsets);
    if (std::ssize(known.costs) >= kFewestMisses)
        advice.costOfMiss = median(known.costs); // a rest among them spoils nothing
    if (const auto wrong = objection(measured, sample, advice.timing.lateness))
        advice.verdict = *wrong;
    else
        adviseTimes(advice, tried, known);
    return advice;
}

} // namespace tryout
