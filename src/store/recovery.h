// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

// Unsaved changes of the visit, in their own file, so that a crash loses nothing. It has those
// settings only, in the notation of the store.

/// Writes those settings of the record to the file soon, on another thread.
void recoveryKeep(const PrefsRecord& record, const SettingSet& changed);

/// Call it when the settings are saved: removes the file.
void recoveryForget();

/// Reads what crashed programs have left into the record, the latest last. Returns the settings
/// that differ now. Unreadable files are ignored. The files stay until recoveryKeep has written
/// this program's own, or until recoveryForget.
SettingSet recoveryTakeOver(PrefsRecord& record);

/// Reads the unsaved changes of an open window into the record.
void recoveryLookAt(PrefsRecord& record);
