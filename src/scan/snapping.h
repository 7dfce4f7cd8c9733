// SPDX-License-Identifier: MIT
#pragma once

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
