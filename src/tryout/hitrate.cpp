// SPDX-License-Identifier: MIT
#include "src/tryout/hitrate.h"

#include "src/tryout/statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tryout {

// Theirs: the rule that a step's time is the reaction time divided by 0.65 (Simpson, Koester and
// LoPresti 2007), and settings of scanning adjusted to each user's measured presses (Koester and
// Simpson 2014). Both are for scans that step from item to item, and neither is used: a sweeping
// line isn't reacted to, its coming is foreseen. Theirs, too: errors of presses that have to fall
// into a stretch of time, from their scatter (Lee and Oulasvirta 2016, on moving targets), and
// scanning by one bar after the other (MacKenzie, on two-bar scanning).
// Derived here: the normal scatter about a constant lateness for a line of constant speed, the
// product of the two axes, the bounds and the two times. No number below is from those papers.

namespace {

/// A line that speeds up starts at this share of its mean speed and ends as much above it.
constexpr double kStartingSpeed = 0.5;
/// Places at which the hit rate of such a line is taken.
constexpr int kPlaces = 16;

double rateAtSpeed(double speed, double width, const Timing& timing) {
    const double spread = speed * std::max(timing.spread, kFinestSpread);
    const double middle = speed * timing.lateness;
    return normalShare((width / 2 - middle) / spread) - normalShare((-width / 2 - middle) / spread);
}

} // namespace

double Sweep::positionAt(double elapsed) const {
    const double u = std::clamp(elapsed / time, 0.0, 1.0);
    if (!accelerates)
        return travel * u;
    return travel * u * (kStartingSpeed + (1 - kStartingSpeed) * u);
}

double Sweep::timeAt(double position) const {
    const double s = std::clamp(position / travel, 0.0, 1.0);
    if (!accelerates)
        return time * s;
    constexpr double a = 1 - kStartingSpeed, b = kStartingSpeed;
    return time * (std::sqrt(b * b + 4 * a * s) - b) / (2 * a);
}

double Sweep::speedAt(double position) const {
    if (!accelerates)
        return travel / time;
    const double u = timeAt(position) / time;
    return travel / time * (kStartingSpeed + 2 * (1 - kStartingSpeed) * u);
}

double hitRate(const Sweep& sweep, double width, const Timing& timing) {
    if (!sweep.accelerates)
        return rateAtSpeed(sweep.travel / sweep.time, width, timing);
    double sum = 0;
    for (int place = 0; place < kPlaces; ++place)
        sum += rateAtSpeed(sweep.speedAt(sweep.travel * (place + 0.5) / kPlaces), width, timing);
    return sum / kPlaces;
}

double SettingRange::roundUp(double value) const {
    // A value that is a step already stays one in spite of its last digits.
    return std::clamp(std::ceil(value / step - 1e-6) * step, min, max);
}

double timePerHit(const Sweep& sweep, double width, const Timing& timing, double delay) {
    const double rate = hitRate(sweep, width, timing);
    if (rate <= 0)
        return std::numeric_limits<double>::infinity();
    return (delay + sweep.time / 2 + (1 - rate) * kCostOfMiss) / rate;
}

std::optional<double> surestTime(Sweep sweep, double width, const Timing& timing,
                                 const SettingRange& range) {
    for (sweep.time = range.min; sweep.time <= range.max; sweep.time += range.step)
        if (hitRate(sweep, width, timing) >= kSurestRate)
            return sweep.time;
    return {};
}

std::optional<double> quickestTime(Sweep sweep, double width, const Timing& timing, double delay,
                                   const SettingRange& range) {
    std::optional<double> best;
    double least = std::numeric_limits<double>::infinity();
    for (sweep.time = range.min; sweep.time <= range.max; sweep.time += range.step) {
        const double cost = timePerHit(sweep, width, timing, delay);
        if (hitRate(sweep, width, timing) >= kQuickestRate && cost < least) {
            best = sweep.time;
            least = cost;
        }
    }
    return best;
}

double neededWidth(const Sweep& sweep, const Timing& timing, double rate) {
    double low = 0, high = 1;
    while (hitRate(sweep, high, timing) < rate)
        high *= 2;
    for (int step = 0; step < 50; ++step) {
        const double middle = (low + high) / 2;
        (hitRate(sweep, middle, timing) < rate ? low : high) = middle;
    }
    return high;
}

} // namespace tryout
