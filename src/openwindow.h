// SPDX-License-Identifier: MIT
#pragma once

#include "src/differences.h"

#include <optional>
#include <string>

// A change that comes from a command goes through the window, if one is open: it shows it, sends it
// to the agent and stores it. It travels as an Apple Event of the agent's class, 'PSet', with the
// record ('----', type 'KrPf') and which settings of it are meant ('Sets', type 'comp': 64 bits,
// one a row of kSettings).

/// Sends a change to the open window, which also looks at the profiles again, and waits for it to
/// be taken, for five seconds at most. None when no window is open; else why it wasn't taken, in
/// words, or an empty text when it was.
std::optional<std::string> sendToWindow(const SettingSet& settings, const PrefsRecord& record);

/// The window's side, from set-up to clean-up: `take` is called for every change that comes.
void openWindowSetup(void (*take)(const SettingSet& settings, const PrefsRecord& record));
void openWindowCleanup();
