// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/advice.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tryout {

/// A try as the history keeps it: what was tried and what was measured, nothing about the person.
/// Times in seconds, lengths in millimetres, counts as whole numbers.
struct PastTry {
    std::string date; ///< 2026-11-25 14:30, by this computer's clock and zone
    double sweepTime = 0;
    double delay = 0; ///< before each scan
    double travel = 0;
    double target = 0;
    double speedsUp = 0;  ///< 0 or 1
    double onRelease = 0; ///< 0 or 1: the scan stopped when the key was let go
    double lateness = 0;
    double spread = 0;
    double hits = 0;
    double misses = 0; ///< sweeps without a hit, those without a press included
};

/// The time that a try took place, by the clock of this computer.
std::string dateNow();

PastTry pastTry(const Advice& advice, const Conditions& tried, const Measured& measured,
                bool onRelease);

/// One line a try after a line of headings; decimal points, commas between columns.
std::string csvOf(std::span<const PastTry> tries);

/// What csvOf wrote; none when the text is anything else.
std::optional<std::vector<PastTry>> triesOf(std::string_view csv);

} // namespace tryout
