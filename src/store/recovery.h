// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

// Unsaved changes of the visit, in their own file, so that a crash loses nothing. It has those
// settings only, in the notation of the store, with the values that they had when they were loaded.

/// Writes those settings of the record to the file soon, on another thread. `loaded` has their
/// values before.
void recoveryKeep(const PrefsRecord& record, const SettingSet& changed, const PrefsRecord& loaded);

/// Call it when the settings are saved: removes the file.
void recoveryForget();

/// Reads what crashed programs have left into the record, the latest last. The record must be as
/// stored. A setting that was stored after the file was written, and is another than it was then,
/// stays. Returns the settings that differ now. Unreadable files are ignored. The files stay until
/// recoveryKeep has written this program's own, or until recoveryForget.
SettingSet recoveryTakeOver(PrefsRecord& record);

/// Those settings were chosen meanwhile, perhaps as they are stored: what crashed programs have
/// left of them is dropped.
void recoveryYield(const SettingSet& settings);

/// Reads the unsaved changes of an open window into the record.
void recoveryLookAt(PrefsRecord& record);
