// SPDX-License-Identifier: MIT
#include "src/tryout/steadiness.h"

#include "src/tryout/statistics.h"

#include <cmath>

namespace tryout {

namespace {

constexpr double kMost = 0.95;
constexpr double kFew = 0.05;
/// A user who is ready only after this many times the usual time has had a rest.
constexpr double kRest = 2;

double roundedUp(double seconds) {
    return std::ceil(seconds / kSteadinessStep - 1e-6) * kSteadinessStep;
}

std::optional<double> mostOf(const std::vector<double>& sample) {
    if (sample.empty())
        return {};
    return roundedUp(percentile(sample, kMost));
}

} // namespace

Steadiness steady(const Measured& measured) {
    std::vector<double> readyTimes, holds, gaps, extraHolds;
    for (const Trial& trial : measured.trials) {
        if (trial.pressed && trial.hold > 0)
            holds.push_back(trial.hold);
        if (trial.ready > 0)
            readyTimes.push_back(trial.ready);
    }
    for (const ExtraPress& extra : measured.extras) {
        gaps.push_back(extra.gap);
        extraHolds.push_back(extra.hold);
    }

    Steadiness result;
    if (percentile(readyTimes, kMost) <= kRest * median(readyTimes))
        result.preScanDelay = mostOf(readyTimes);
    result.afterClickDelay = mostOf(gaps);
    if (extraHolds.empty() || holds.empty())
        return result;
    const double shortest = roundedUp(percentile(extraHolds, kMost));
    result.holdsOverlap = shortest > percentile(holds, kFew);
    if (!result.holdsOverlap)
        result.minTriggerDuration = shortest;
    return result;
}

} // namespace tryout
