// SPDX-License-Identifier: MIT
#pragma once

#include "src/prefs.h"
#include "src/tryout/advice.h"
#include "src/tryout/session.h"

namespace tryout {

/// How presses stop the line with these settings. Stepping has no line to be stopped: it counts as
/// pressing.
Trigger triggerOf(const PrefsRecord& record);

/// What is tried on a screen of that height, in points and in millimetres: the line crosses it, or
/// the scan area when there is one.
Conditions conditionsOf(const PrefsRecord& record, double points, double millimetres);

} // namespace tryout
