// SPDX-License-Identifier: MIT
#pragma once

#include "src/store/prefs.h"
#include "src/tryout/advice.h"
#include "src/tryout/session.h"

namespace tryout {

/// How presses stop the line with these settings.
Trigger triggerOf(const PrefsRecord& record);

/// The size of the marks: one of these two, or whole millimetres from kLeastTarget to
/// kLargestTarget. The values are stored, so they must not change.
using TargetChoice = UInt32;
constexpr TargetChoice kUsualTarget = 0;   ///< ten millimetres
constexpr TargetChoice kPaletteTarget = 1; ///< the size of a palette button
constexpr TargetChoice kLeastTarget = 3;
constexpr TargetChoice kLargestTarget = 60;

/// Width and height in any unit.
struct Extent {
    double width, height;
};

/// The target's size in millimetres. `millimetresAPoint` is the size of the screen's points. An
/// invalid choice means the usual one.
Extent targetOf(TargetChoice choice, const PrefsRecord& record, Extent millimetresAPoint);

/// The choice of the next whole millimetre above or below a height, within the limits.
TargetChoice nextTarget(double height, bool isLarger);

/// The conditions on a screen of that size, in points and in millimetres. A scan area is a part
/// of the screen and swept in that part of the time, so at the same speed.
Conditions conditionsOf(const PrefsRecord& record, Extent points, Extent millimetres,
                        TargetChoice target);

} // namespace tryout
