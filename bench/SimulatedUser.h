// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/advice.h"

#include <optional>
#include <random>

/// A user of whom everything is known, to hold what the sums find against.
struct SimulatedUser {
    const char* who;
    tryout::Timing timing;    ///< normal, in seconds
    double lapses = 0;        ///< share of sweeps without a press, or with one at any moment
    double doublePresses = 0; ///< share of presses that a second one follows
    double strays = 0;        ///< share of sweeps with a press at any moment
    double tiring = 0;        ///< the spread grows by this share of it from sweep to sweep
    /// What a try tells one who can't be advised.
    std::optional<tryout::Verdict> verdict = {};
};

/// The twelve sweeps of a try, with marks all across the range in a random order.
tryout::Measured simulateTry(const SimulatedUser& user, const tryout::Conditions& conditions,
                             std::mt19937& random);

/// What came of following the advice, trying again wherever it says so.
struct SimulatedRun {
    tryout::Verdict first{}; ///< of the first try
    bool advised = false;    ///< a time was promised in the end
    bool kept = false;       ///< the promised rate is reached at it, and at the surest time too
    double time = 0;
    int tries = 0;
};

SimulatedRun simulateRun(const SimulatedUser& user, tryout::Conditions conditions,
                         std::mt19937& random);

/// Users from quick and even to slow and shaky, and odd ones; a screen of 500 mm swept in 10 s at
/// first.
extern const SimulatedUser kSimulatedUsers[12];
tryout::Conditions simulatedConditions();
