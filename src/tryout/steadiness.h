// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/trial.h"

#include <optional>

/// What a try says about the settings that steady the presses. Times in seconds; none where there
/// was nothing to measure.
namespace tryout {

/// A try's settings of triggers are whole tenths of a second.
constexpr double kSteadinessStep = 0.1;

struct Steadiness {
    /// Before each scan: the user was ready for the next press after it in 95 of 100 cases. None
    /// when rests were among the times.
    std::optional<double> preScanDelay;
    /// Longer than nearly all presses that nothing asked for, shorter than nearly all others.
    std::optional<double> minTriggerDuration;
    bool holdsOverlap = false; ///< no such time exists
    /// Presses that nothing asked for come later than this in 5 of 100 cases.
    std::optional<double> afterClickDelay;
};

Steadiness steady(const Measured& measured);

} // namespace tryout
