// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/settings.h"
#include "src/tryout/advice.h"
#include "src/tryout/steadiness.h"

#include <optional>

namespace tryout {

/// Another value for a setting, in seconds.
struct Suggestion {
    const Setting* setting;
    double value;
};

/// The most valuable suggestion besides the line's time. One change at a time: none when the line's
/// time is to change. Waits and filters are only made longer. A value that can't be set was a rest
/// and isn't suggested.
std::optional<Suggestion> suggestionOf(const Advice& advice, const Steadiness& steadiness,
                                       const PrefsRecord& record);

} // namespace tryout
