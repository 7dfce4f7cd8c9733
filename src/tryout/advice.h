// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/hitrate.h"
#include "src/tryout/trial.h"

#include <optional>

/// What a try says about the sweep's time.
namespace tryout {

/// What a try was made with.
struct Conditions {
    Sweep sweep;                       ///< in millimetres and seconds
    double target = 10;                ///< its size in the direction of the sweep, in millimetres
    double delay = 0;                  ///< before each scan, in seconds
    SettingRange times = {1, 60, 0.5}; ///< what the sweep's time can be, and the pointer's
    /// What moves along the stopped line, and is stopped as well; none when a press moves a step.
    /// It isn't swept in a try: its presses are taken to be as the line's.
    std::optional<Sweep> pointer = {};
    double across = 10; ///< the target's size in the pointer's direction
};

enum class Verdict {
    NothingPressed, ///< no press at all
    TooFew,         ///< fewer than kFewestTrials presses
    Unsteady,       ///< too many presses that nothing asked for: those first
    Random,         ///< the presses had nothing to do with the marks
    Tired,          ///< they got worse from sweep to sweep
    Keep,           ///< no other time is worth the change
    Change,         ///< to `time`
    TryAgain,       ///< at `time`, on the way to a better one that this try is too far from
    OutOfReach,     ///< the slowest sweep is still too fast
};

constexpr int kFewestTrials = 8;
/// Of all presses; from this share on those that nothing asked for come first.
constexpr double kTooManyExtras = 0.25;
/// Nothing is foretold for sweeps of less or more than these shares of the speed that was tried.
constexpr double kSlowestForetold = 0.5;
constexpr double kFastestForetold = 1.5;
/// So many misses tell what one costs.
constexpr int kFewestMisses = 3;
/// A change that saves a smaller share of the time for a hit isn't worth getting used to.
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
    /// The time that suits the pointer after such a line: the set one, if it does. None where a
    /// pointer's hits can't be foretold. To be suggested only with Keep: one change at a time.
    std::optional<double> pointerTime;
    double clicks = 0;           ///< with it: as `expected`, of line and pointer
    double clicksPromised = 0;   ///< and as `promised`
    std::optional<Click> surest; ///< the times that reach kSurestRate, where they can be foretold
    std::optional<double> costOfMiss; ///< seconds, when it was measured
    double enlargement = 0; ///< OutOfReach: how many times as large targets reach kQuickestRate
};

Advice advise(const Measured& measured, const Conditions& conditions);

/// Adds what a try tells of the user to what is known from those before; of presses at random
/// nothing is to be learned.
void remember(Earlier& earlier, const Measured& measured, const Conditions& tried);

/// The timing that 95 of 100 users with `presses` presses like these are no worse than.
Timing cautiousTiming(const Timing& measured, int presses);

} // namespace tryout
