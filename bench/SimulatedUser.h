// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/advice.h"

#include <optional>
#include <random>

/// A user with known properties, to compare results with.
struct SimulatedUser {
    const char* who;
    tryout::Timing timing;    ///< normal, in seconds
    double lapses = 0;        ///< share of sweeps without a press, or with one at any moment
    double doublePresses = 0; ///< share of presses that a second one follows
    double strays = 0;        ///< share of sweeps with a press at any moment
    double tiring = 0;        ///< the spread grows by this share of it from sweep to sweep
    /// The verdict for a user who can't be advised.
    std::optional<tryout::Verdict> verdict = {};
};

/// When the user presses to stop a sweep at `markTime`, both in seconds after it began. `spread` is
/// the present one.
double pressTime(const SimulatedUser& user, const Sweep& sweep, double markTime, double spread,
                 std::mt19937& random);

/// The twelve sweeps of a try, with marks across the whole range in random order.
tryout::Measured simulateTry(const SimulatedUser& user, const tryout::Conditions& conditions,
                             std::mt19937& random);

/// What came of following the advice, trying again wherever it says so. A promise is of the rate of
/// clicks, with the time for the pointer that goes with the line's.
struct SimulatedRun {
    tryout::Verdict first{};  ///< of the first try
    bool advised = false;     ///< in the end the line's time was right, and a promise made
    bool kept = false;        ///< that promise is true
    bool isChanged = false;   ///< before, a change of the line's time was promised something
    bool isChangeKept = true; ///< the first of those promises is true
    double time = 0, pointerTime = 0; ///< in the end, in seconds
    int tries = 0;
};

SimulatedRun simulateRun(const SimulatedUser& user, tryout::Conditions conditions,
                         std::mt19937& random);

/// Users from quick and even to slow and shaky, and odd ones; a screen of 530 by 300 mm, swept in
/// 10 s by line and pointer at first.
extern const SimulatedUser kSimulatedUsers[12];
tryout::Conditions simulatedConditions();
