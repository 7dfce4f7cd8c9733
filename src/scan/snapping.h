// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

/// Points within which a click snaps: without a measured spread, at the least, at the most.
constexpr double kUsualSnap = 10, kLeastSnap = 4, kMostSnap = 24;

/// How near a click must come to a button, in points: as far as what is stopped goes in the spread
/// of the user's presses. That is their standard deviation in seconds, or 0 if nobody has measured
/// it; the speed is in points a second.
constexpr double snapDistance(double spread, double speed) {
    return spread > 0 ? std::clamp(spread * speed, kLeastSnap, kMostSnap) : kUsualSnap;
}

/// Settings of snapping: clicks that come near to one button hit its middle. They are stored beside
/// the agent's record, which has no room for them. The agent reads them in each scan.
struct SnapSettings {
    bool isOn = true;
    double spread =
        0; ///< s; the standard deviation of presses, as "Find my speed" measured it last
};

/// As this process knows the stored settings: CFPreferencesAppSynchronize reads them anew.
SnapSettings readSnapSettings();

/// Stores it at once, and no setting. In seconds; 0 for unknown.
void setSpread(double seconds);
