// SPDX-License-Identifier: MIT
#include "src/scan/sweep.h"

#include <algorithm>
#include <cmath>

namespace {

/// A line that speeds up starts at this share of its mean speed and ends as much above it.
constexpr double kStartingSpeed = 0.5;

} // namespace

double Sweep::positionAt(double elapsed) const {
    const double u = std::clamp(elapsed / time, 0.0, 1.0);
    if (!accelerates)
        return travel * u;
    return travel * u * (kStartingSpeed + (1 - kStartingSpeed) * u);
}

double Sweep::timeAt(double position) const {
    const double s = std::clamp(position / travel, 0.0, 1.0);
    if (!accelerates)
        return time * s;
    constexpr double a = 1 - kStartingSpeed, b = kStartingSpeed;
    return time * (std::sqrt(b * b + 4 * a * s) - b) / (2 * a);
}

double Sweep::speedAt(double position) const {
    if (!accelerates)
        return travel / time;
    const double u = timeAt(position) / time;
    return travel / time * (kStartingSpeed + 2 * (1 - kStartingSpeed) * u);
}
