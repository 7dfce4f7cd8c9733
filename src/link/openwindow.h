// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include <optional>
#include <string>

// A change made by a command goes to the open window, if there is one. The window shows it, sends
// it to the agent and stores it. The change is an Apple Event of the agent's class, 'PSet', with
// the record ('----', type 'KrPf') and the set of settings that change ('Sets', type 'comp': 64
// bits, one for each row of kSettings). Any program on the bus can send it, so its values are
// checked like those of a file; docs/agent-contract.md has it too.

/// Sends a change to the open window and waits for its answer, five seconds at most. The window
/// also reads the profiles again. None when no window is open. Else the reason for a refusal in
/// words; an empty text is success.
std::optional<std::string> sendToWindow(const SettingSet& settings, const PrefsRecord& record);

/// The window's side. From set-up to clean-up `take` is called for every change.
void openWindowSetup(void (*take)(const SettingSet& settings, const PrefsRecord& record));
void openWindowCleanup();
