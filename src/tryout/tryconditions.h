// SPDX-License-Identifier: MIT
#pragma once

#include "src/prefs.h"
#include "src/tryout/advice.h"
#include "src/tryout/session.h"

namespace tryout {

/// How presses stop the line with these settings.
Trigger triggerOf(const PrefsRecord& record);

/// How large the marks are: one of these two, or whole millimetres from kLeastTarget to
/// kLargestTarget. Kept as such, so that the values stay what they are.
using TargetChoice = UInt32;
constexpr TargetChoice kUsualTarget = 0;   ///< ten millimetres
constexpr TargetChoice kPaletteTarget = 1; ///< as a button of the palette
constexpr TargetChoice kLeastTarget = 3;
constexpr TargetChoice kLargestTarget = 60;

/// Width and height, in whichever unit.
struct Extent {
    double width, height;
};

/// The target's size in millimetres, on a screen with points of that size. A choice that is none
/// is the usual one.
Extent targetOf(TargetChoice choice, const PrefsRecord& record, Extent millimetresAPoint);

/// The choice of the next whole millimetre above a height, or below it; kept inside.
TargetChoice nextTarget(double height, bool isLarger);

/// What is tried on a screen of that size, in points and in millimetres: the line crosses it, or
/// the scan area when there is one.
Conditions conditionsOf(const PrefsRecord& record, Extent points, Extent millimetres,
                        TargetChoice target);

} // namespace tryout
