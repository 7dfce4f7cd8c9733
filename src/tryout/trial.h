// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

/// The measurements of one try. Times are in seconds from the events' time stamps, lengths in
/// millimetres. Nothing is about the person.
namespace tryout {

/// A sweep past one mark.
struct Trial {
    double markTime = 0;  ///< from the sweep's start to the line's centre crossing the mark
    bool pressed = false; ///< else the line ran to the far edge, and the rest is 0
    double offset = 0;    ///< of the press from the crossing; negative: early
    double miss = 0;      ///< of the stopped line's centre from the mark; negative: short of it
    double hold = 0;      ///< how long the key was down; 0: not known
    double ready = 0;     ///< from its release to the next requested press; 0: none came
    double next = 0;      ///< from the stop of the line to that press
};

/// An extra press, soon after one that counted.
struct ExtraPress {
    double gap = 0;  ///< since the release before it
    double hold = 0; ///< how long it lasted
};

/// Data of the tries before this one, by the same user with the same trigger.
struct Earlier {
    std::vector<double> offsets;
    std::vector<double> costs;  ///< of each miss: until the next scan was started
    std::vector<double> speeds; ///< of the line, on the whole way; mm/s
};

/// The twelve sweeps of a try, as far as they were made. The two free ones aren't included.
struct Measured {
    std::vector<Trial> trials;
    std::vector<ExtraPress> extras;
    Earlier earlier = {};
};

} // namespace tryout
