// SPDX-License-Identifier: MIT
#include "src/tryout/hitrate.h"

#include "src/scan/snapping.h"
#include "src/tryout/statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tryout {

// From the literature: a step's time is the reaction time divided by 0.65 (Simpson, Koester and
// LoPresti 2007); adjusting scanning settings (Koester and Simpson 2014). Both are about scans that
// step from item to item and aren't used here: users don't react to a sweeping line, they see it
// coming. Lee and Oulasvirta study moving targets, MacKenzie scanning by two bars; these are
// similar to a line and a pointer after it. No number or formula below is from these papers.
// Derived here: normally distributed errors around a constant lateness, for a line of constant
// speed; that the rates of two axes multiply, as if their presses were independent; the bounds and
// both times.

namespace {

/// The number of places at which such a line's hit rate is taken.
constexpr int kPlaces = 16;

double rateAtSpeed(double speed, double width, const Timing& timing) {
    const double spread = speed * std::max(timing.spread, kFinestSpread);
    const double middle = speed * timing.lateness;
    return normalShare((width / 2 - middle) / spread) - normalShare((-width / 2 - middle) / spread);
}

/// The pair with the lowest `costOf` among those that reach the rate.
template <class Cost>
std::optional<Click> best(RatedTimes lines, RatedTimes pointers, double rate, Cost costOf) {
    std::optional<Click> found;
    double least = std::numeric_limits<double>::infinity();
    for (const RatedTime& line : lines)
        for (const RatedTime& pointer : pointers) {
            const Click click = {line, pointer};
            if (click.rate() < rate || costOf(click) >= least)
                continue;
            found = click;
            least = costOf(click);
        }
    return found;
}

} // namespace

double hitRate(const Sweep& sweep, double width, const Timing& timing) {
    if (!sweep.accelerates)
        return rateAtSpeed(sweep.travel / sweep.time, width, timing);
    double sum = 0;
    for (int place = 0; place < kPlaces; ++place)
        sum += rateAtSpeed(sweep.speedAt(sweep.travel * (place + 0.5) / kPlaces), width, timing);
    return sum / kPlaces;
}

double Target::widthFor(const Sweep& sweep) const {
    if (point <= 0)
        return width;
    return width + 2 * snapDistance(spread, sweep.travel / sweep.time / point) * point;
}

double SettingRange::roundUp(double value) const {
    // A value that is a step stays one, whatever its last digits.
    return std::clamp(std::ceil(value / step - 1e-6) * step, min, max);
}

double timePerHit(const Click& click, const Waits& waits) {
    const double rate = click.rate();
    if (rate <= 0)
        return std::numeric_limits<double>::infinity();
    return (waits.delay + click.time() / 2 + (1 - rate) * waits.miss) / rate;
}

std::vector<RatedTime> ratedTimes(Sweep sweep, const Target& target, const Timing& timing,
                                  const SettingRange& range, double part) {
    std::vector<RatedTime> times;
    for (sweep.time = range.min; sweep.time <= range.max; sweep.time += range.step)
        times.push_back({sweep.time, hitRate(sweep, target.widthFor(sweep), timing), part});
    return times;
}

std::optional<Click> surestTimes(RatedTimes line, RatedTimes pointer) {
    return best(line, pointer, kSurestRate, [](const Click& click) { return click.time(); });
}

std::optional<Click> quickestTimes(RatedTimes line, RatedTimes pointer, const Waits& waits) {
    return best(line, pointer, kQuickestRate,
                [&](const Click& click) { return timePerHit(click, waits); });
}

double neededEnlargement(std::span<const Axis> axes, const Timing& timing, double rate) {
    const auto isEnough = [&](double times) {
        double all = 1;
        for (auto [sweep, target] : axes) {
            target.width *= times;
            all *= hitRate(sweep, target.widthFor(sweep), timing);
        }
        return all >= rate;
    };
    double low = 0, high = 1;
    while (!isEnough(high))
        high *= 2;
    for (int step = 0; step < 50; ++step) {
        const double middle = (low + high) / 2;
        (isEnough(middle) ? high : low) = middle;
    }
    return high;
}

} // namespace tryout
