// SPDX-License-Identifier: MIT
#pragma once

#include "src/scan/sweep.h"

#include <optional>
#include <span>
#include <vector>

/// How often a line that sweeps steadily, or speeds up, is stopped on a target. Lengths are in any
/// one unit, times in seconds.
namespace tryout {

/// A user's presses, relative to the intended moment.
struct Timing {
    double lateness = 0; ///< the mean; negative: early
    double spread = 0;   ///< the standard deviation
};

/// The smallest spread that differs from none: time stamps are in whole milliseconds, and the line
/// moves by frames.
constexpr double kFinestSpread = 0.005;

/// The share of presses, 0 to 1, that stop the line on a target of this width. When the line speeds
/// up, the mean over all places.
double hitRate(const Sweep& sweep, double width, const Timing& timing);

/// What is to be hit.
struct Target {
    double width = 0;  ///< in the sweep's direction
    double point = 0;  ///< the length of a point if clicks snap to it (src/scan/snapping.h); else 0
    double spread = 0; ///< of the user's presses, as the agent knows it

    /// How wide it is for a press that stops that sweep.
    double widthFor(const Sweep& sweep) const;
};

/// The possible values of a setting.
struct SettingRange {
    double min, max, step;

    /// The next value that isn't smaller, within the limits.
    double roundUp(double value) const;
};

/// A time for a sweep of the whole screen, in seconds, and the share of presses that hit then.
struct RatedTime {
    double time = 0;
    double rate = 1;
    double part = 1; ///< of the screen that is swept, above 0 to 1, in that part of the time
};

/// One click: a press for the line, then one for the pointer along it. Without a pointer its time
/// is 0 and it never misses.
struct Click {
    RatedTime line, pointer;

    /// Two axes multiply.
    double rate() const { return line.rate * pointer.rate; }

    /// Of both sweeps.
    double time() const { return line.time * line.part + pointer.time * pointer.part; }
};

/// The cost of a miss that wasn't measured: the time until the next scan can start.
constexpr double kCostOfMiss = 5;

/// Waiting times besides the sweeps, in seconds.
struct Waits {
    double delay = 0; ///< before the line and, where there is one, before the pointer together
    double miss = kCostOfMiss;
};

/// The average time of a hit, including the waits before both sweeps and the misses: (D + T/2 + (1
/// - P) c) / P, where T is the time of both sweeps. Infinite when nothing is hit.
double timePerHit(const Click& click, const Waits& waits);

/// Every time of the range for the sweep of a screen, the shortest first. `part` of it is swept.
std::vector<RatedTime> ratedTimes(Sweep sweep, const Target& target, const Timing& timing,
                                  const SettingRange& range, double part = 1);

constexpr double kSurestRate = 0.9;
constexpr double kQuickestRate = 0.75;

using RatedTimes = std::span<const RatedTime>;

/// For a line without a pointer.
inline constexpr RatedTime kNoPointer[] = {{}};

/// The two times with the shortest sweeps that reach kSurestRate together. None when there are
/// none.
std::optional<Click> surestTimes(RatedTimes line, RatedTimes pointer);

/// The two with the shortest time for a hit, among those that reach kQuickestRate together.
std::optional<Click> quickestTimes(RatedTimes line, RatedTimes pointer, const Waits& waits);

/// A target and the sweep that must hit it.
struct Axis {
    Sweep sweep;
    Target target;
};

/// The factor by which all targets must be wider to be hit at `rate` by presses for each axis.
double neededEnlargement(std::span<const Axis> axes, const Timing& timing, double rate);

} // namespace tryout
