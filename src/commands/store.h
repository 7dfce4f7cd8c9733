// SPDX-License-Identifier: MIT
#pragma once

#include "src/differences.h"

#include <string>

class CFBundle;

// Where a command finds the settings and brings its changes: the open window, else the stored
// settings and the running agent.

/// The pane's bundle, borrowed; null without one.
const CFBundle* paneBundle();

/// Has the palette's actions known by their titles, which the agent has.
void nameActions();

/// The settings as they are now. In an open window a change may be newer than what is stored.
PrefsRecord currentSettings();

/// Makes the settings those of the record and reports what differs. Returns why that failed, in
/// words; empty when it is done.
std::string changeSettings(const SettingSet& settings, const PrefsRecord& record);
