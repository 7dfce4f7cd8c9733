// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/hitrate.h"
#include "src/tryout/trial.h"

#include <optional>

/// The sweep's time that a try suggests.
namespace tryout {

/// The conditions of a try.
struct Conditions {
    Sweep sweep;                       ///< of the whole screen, in millimetres and seconds
    double target = 10;                ///< its size in the direction of the sweep, in millimetres
    double delay = 0;                  ///< before the line, and before the pointer; in seconds
    SettingRange times = {1, 60, 0.5}; ///< what the sweep's time can be, and the pointer's
    /// Moves along the stopped line and is stopped as well. None when a press moves one step. It
    /// isn't swept in a try: its presses are assumed to be like the line's.
    std::optional<Sweep> pointer = {};
    double across = 10; ///< the target's size in the pointer's direction
    double point = 0;   ///< the length of a point if clicks snap to such a target; else 0
    /// The parts of the screen that are swept, above 0 to 1. They take these parts of the times.
    double linePart = 1, pointerPart = 1;
};

enum class Verdict {
    NothingPressed, ///< no press at all
    TooFew,         ///< fewer than kFewestTrials presses
    Unsteady,       ///< too many extra presses, which come first
    Random,         ///< the presses are unrelated to the marks
    Tired,          ///< the presses get worse from sweep to sweep
    Keep,           ///< no other time is worth a change
    Change,         ///< to `time`
    TryAgain,       ///< at `time`; a better one is too far from this try
    OutOfReach,     ///< the slowest sweep is still too fast
};

constexpr int kFewestTrials = 8;
/// From this share of all presses on, extra presses come first.
constexpr double kTooManyExtras = 0.25;
/// Predictions are limited to sweeps with these shares of the tried speed.
constexpr double kSlowestForetold = 0.5;
constexpr double kFastestForetold = 1.5;
/// The number of misses that show what one costs.
constexpr int kFewestMisses = 3;
/// A change that saves a smaller share of the time for a hit isn't worth it.
constexpr double kWorthwhileSaving = 0.05;

struct Advice {
    Verdict verdict = Verdict::NothingPressed;
    int presses = 0; ///< of the trials
    int hits = 0;    ///< stopped within half a target of the mark
    Timing timing;   ///< as measured: median and spread
    Timing cautious; ///< what the advice reckons with: the worst that so few presses allow
    double time = 0; ///< suggested for the line, in seconds; the tried one unless Change, TryAgain
    double expected = 0; ///< the line's share of hits at `time`, if the timing is as measured
    double promised = 0; ///< the least share that 95 of 100 users with such a try have there
    double expectedNow = 0, promisedNow = 0; ///< the same at the time that was tried
    /// The time that suits the pointer with such a line; the set one if it suits. None when hits of
    /// the pointer can't be predicted. Suggest it only with Keep: one change at a time.
    std::optional<double> pointerTime;
    double clicks = 0;           ///< with it: as `expected`, of line and pointer
    double clicksPromised = 0;   ///< and as `promised`
    std::optional<Click> surest; ///< the times that reach kSurestRate, where they can be foretold
    std::optional<double> costOfMiss; ///< seconds, when it was measured
    double enlargement = 0; ///< OutOfReach: how many times as large targets reach kQuickestRate
};

Advice advise(const Measured& measured, const Conditions& conditions);

/// Adds a try's data to those of earlier ones. Presses at random add nothing.
void remember(Earlier& earlier, const Measured& measured, const Conditions& tried);

/// A cautious timing: more than 95 of 100 users with these presses are no worse.
Timing cautiousTiming(std::span<const double> offsets);

} // namespace tryout
