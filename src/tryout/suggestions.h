// SPDX-License-Identifier: MIT
#pragma once

#include "src/settings.h"
#include "src/tryout/advice.h"
#include "src/tryout/steadiness.h"

#include <optional>

namespace tryout {

/// Another value for a setting, in seconds.
struct Suggestion {
    const Setting* setting;
    double value;
};

/// What a try suggests besides the line's time, the most valuable: one change at a time, and none
/// beside one of the line. Waits and filters are only made longer, and none is suggested that can't
/// be set: such a long one was a rest.
std::optional<Suggestion> suggestionOf(const Advice& advice, const Steadiness& steadiness,
                                       const PrefsRecord& record);

} // namespace tryout
