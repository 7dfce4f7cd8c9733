// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/advice.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tryout {

/// A try in the history: what was tried and measured, nothing about the person. Times are in
/// seconds, lengths in millimetres, counts whole numbers.
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

/// The present time, by this computer's clock.
std::string dateNow();

PastTry pastTry(const Advice& advice, const Conditions& tried, const Measured& measured,
                bool onRelease);

/// A line of headings, then a line for each try. Decimal points; commas between columns.
std::string csvOf(std::span<const PastTry> tries);

/// Reads what csvOf wrote. None for any other text.
std::optional<std::vector<PastTry>> triesOf(std::string_view csv);

} // namespace tryout
