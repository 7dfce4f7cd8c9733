// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

/// How often a line that sweeps at a constant pace, or speeds up, is stopped on a target. Lengths
/// are in one unit, whichever, and times in seconds.
namespace tryout {

/// A line's way across the screen.
struct Sweep {
    double travel = 0; ///< the whole way
    double time = 0;   ///< for the whole way
    bool accelerates = false;

    /// Where the line's centre is: 0 to `travel`, `elapsed` after it started.
    double positionAt(double elapsed) const;
    /// When it gets to a position of 0 to `travel`.
    double timeAt(double position) const;
    /// How fast it is there.
    double speedAt(double position) const;
};

/// A user's presses, against the moment they are meant for.
struct Timing {
    double lateness = 0; ///< the mean; negative: early
    double spread = 0;   ///< the standard deviation
};

/// The least spread that is told from none: timestamps have whole milliseconds, and the line moves
/// from frame to frame.
constexpr double kFinestSpread = 0.005;

/// The share of presses, 0 to 1, that stop the line on a target of this width in the line's
/// direction; the mean over all places when the line speeds up.
double hitRate(const Sweep& sweep, double width, const Timing& timing);

/// The values that a setting can have.
struct SettingRange {
    double min, max, step;

    /// The next value that isn't smaller, kept inside.
    double roundUp(double value) const;
};

/// A time for a sweep, in seconds, and the share of presses that hit then.
struct RatedTime {
    double time = 0;
    double rate = 1;
};

/// What one click takes: a press for the line, then one for the pointer along it. Without a pointer
/// its time is 0, and it never misses.
struct Click {
    RatedTime line, pointer;

    /// Two axes multiply.
    double rate() const { return line.rate * pointer.rate; }

    double time() const { return line.time + pointer.time; }
};

/// What a miss costs unless it was measured: the time until the next scan can start.
constexpr double kCostOfMiss = 5;

/// What there is to wait for besides the sweeps, in seconds.
struct Waits {
    double delay = 0; ///< before the line sets off
    double miss = kCostOfMiss;
};

/// The time that a hit takes on average, with the wait before each scan and the misses on the way:
/// (D + T/2 + (1 - P) c) / P, where T is the time of both sweeps; infinite when nothing is hit.
double timePerHit(const Click& click, const Waits& waits);

/// Every time of the range for the sweep, from the shortest on.
std::vector<RatedTime> ratedTimes(Sweep sweep, double width, const Timing& timing,
                                  const SettingRange& range);

constexpr double kSurestRate = 0.9;
constexpr double kQuickestRate = 0.75;

using RatedTimes = std::span<const RatedTime>;

/// For a line without a pointer.
inline constexpr RatedTime kNoPointer[] = {{}};

/// Of these the two times with the shortest sweeps that reach kSurestRate together; none when none
/// do.
std::optional<Click> surestTimes(RatedTimes line, RatedTimes pointer);

/// The two with the least time for a hit, among those that reach kQuickestRate together.
std::optional<Click> quickestTimes(RatedTimes line, RatedTimes pointer, const Waits& waits);

/// What has to be hit, by what.
struct Axis {
    Sweep sweep;
    double width; ///< of the target in the sweep's direction
};

/// How many times as wide all targets must be to be hit at `rate` by presses for each axis.
double neededEnlargement(std::span<const Axis> axes, const Timing& timing, double rate);

} // namespace tryout
