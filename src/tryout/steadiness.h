// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/trial.h"

#include <optional>

/// What a try suggests for settings that steady the presses. Times in seconds; none where nothing
/// was measured.
namespace tryout {

/// The suggested times are whole tenths of a second.
constexpr double kSteadinessStep = 0.1;

struct Steadiness {
    /// Before each scan: in 95 of 100 cases the user was ready for the next press after it. None
    /// when there were rests.
    std::optional<double> preScanDelay;
    /// Longer than nearly all extra presses, shorter than nearly all others.
    std::optional<double> minTriggerDuration;
    bool holdsOverlap = false; ///< no such time exists
    /// Only 5 of 100 extra presses come later than this.
    std::optional<double> afterClickDelay;
};

Steadiness steady(const Measured& measured);

} // namespace tryout
