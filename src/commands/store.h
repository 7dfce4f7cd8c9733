// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include <string>

class CFBundle;

// Where a command reads and changes settings: in the open window, else in the stored settings and
// the running agent.

/// The pane's bundle, borrowed. Null without one.
const CFBundle* paneBundle();

/// Loads the titles of the palette's actions from the agent.
void nameActions();

/// The current settings. An open window may have changes that aren't stored.
PrefsRecord currentSettings();

/// Gives those settings the record's values and reports what changed. Returns the reason for a
/// failure in words, else an empty text.
std::string changeSettings(const SettingSet& settings, const PrefsRecord& record);
