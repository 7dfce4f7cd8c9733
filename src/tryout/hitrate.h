// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

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
/// direction; the mean over all places when the line speeds up. A line and a pointer that follows
/// it hit with the product of both.
double hitRate(const Sweep& sweep, double width, const Timing& timing);

/// The values that a setting can have.
struct SettingRange {
    double min, max, step;

    /// The next value that isn't smaller, kept inside.
    double roundUp(double value) const;
};

/// What a miss costs unless it was measured: the time until the next scan can start.
constexpr double kCostOfMiss = 5;

/// The time that a hit takes on average, with the wait before each scan and the misses on the way.
/// (D + T/2 + (1 - P) c) / P; infinite when nothing is hit.
double timePerHit(const Sweep& sweep, double width, const Timing& timing, double delay);

constexpr double kSurestRate = 0.9;
constexpr double kQuickestRate = 0.75;

/// The shortest time for the sweep that reaches kSurestRate; none when the longest doesn't.
std::optional<double> surestTime(Sweep sweep, double width, const Timing& timing,
                                 const SettingRange& range);

/// The time with the least time for a hit, among those that reach kQuickestRate; none when the
/// longest doesn't.
std::optional<double> quickestTime(Sweep sweep, double width, const Timing& timing, double delay,
                                   const SettingRange& range);

/// How wide a target must be to be hit at `rate`.
double neededWidth(const Sweep& sweep, const Timing& timing, double rate);

} // namespace tryout
