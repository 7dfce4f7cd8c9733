// SPDX-License-Identifier: MIT
#pragma once

#include "src/store/prefs.h"
#include "src/tryout/TryPage.h"

#include <utility>

/// Stops each line of a try 100 ms after it set off, and presses once more than was asked for. A
/// user whose every press comes as quickly as it can: moments are told, not waited for. `now` moves
/// on with them.
inline void doTheSweeps(TryPage& page, double& now, int measured = tryout::kMeasuredSweeps) {
    for (int i = 0; i < tryout::kFreeSweeps + measured; ++i) {
        for (const auto& [wait, hold] :
             {std::pair(1.5, 0.3), {prefs.preScanDelay - 0.2, 0.3}, {0.2, 0.05}}) {
            page.pressed(now += wait);
            page.released(now += hold);
        }
    }
    now += 1;
}
