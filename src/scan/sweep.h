// SPDX-License-Identifier: MIT
#pragma once

/// The way of a line or a pointer across the screen: the law that a scan moves by, and that advice
/// about its speed reckons with. Lengths are in any one unit, times in seconds.
struct Sweep {
    double travel = 0; ///< the whole way
    double time = 0;   ///< for the whole way
    bool accelerates = false;

    /// The place of the line's centre, 0 to `travel`, `elapsed` seconds after its start.
    double positionAt(double elapsed) const;
    /// When it reaches a position from 0 to `travel`.
    double timeAt(double position) const;
    /// Its speed there.
    double speedAt(double position) const;
};
