// SPDX-License-Identifier: MIT
#pragma once

#include "src/differences.h"

// What was changed during the visit and isn't saved yet, in a file of its own, so that a crash
// loses nothing. It holds those settings alone, under their keys and as they are stored.

/// Has the file hold those settings of the record. It is written soon, off this thread.
void recoveryKeep(const PrefsRecord& record, const SettingSet& changed);

/// The settings are saved: removes the file.
void recoveryForget();

/// Takes what programs that crashed left behind into the record, the latest last; gives the
/// settings that are different now. What can't be read is ignored. Those files stay until
/// recoveryKeep has written this program's own, or until recoveryForget.
SettingSet recoveryTakeOver(PrefsRecord& record);

/// Takes what an open window has changed and not saved yet into the record.
void recoveryLookAt(PrefsRecord& record);
