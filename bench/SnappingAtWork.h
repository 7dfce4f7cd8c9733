// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "bench/AgentDesktop.h"

#include <vector>

/// What the agent did for presses beside buttons.
struct AtWork {
    int clicks = 0;       ///< of 20
    int moved = 0;        ///< to the middle of the button
    double delay = 0;     ///< from a press until its click is in a window; the median, in seconds
    double processor = 0; ///< share of a core, of the agent and of the program together
};

/// Scans 20 times in real time, with a line and a pointer that take five seconds each. `program` is
/// the one with the buttons, which the desktop's own window covers: it gets the clicks.
AtWork scanBeside(AgentDesktop& desktop, const std::vector<Area>& buttons, const Area& screen,
                  qint64 program, bool snaps);
