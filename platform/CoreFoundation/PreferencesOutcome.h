// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreFoundation/FileOutcome.h"

#include <string>
#include <vector>

// What happened to the file of this user's preference domain (CFPreferences.h), so that the host
// can tell the user. To retry a failed save, call CFPreferencesAppSynchronize: unwritten keys are
// still marked.

/// The state of this user's file when it was last read. A missing file is no trouble. Once a
/// damaged file was kept aside, that stays the outcome.
FileOutcome preferencesLoadOutcome(const CFString* domain);

/// How the last save ended. No trouble before the first one.
FileOutcome preferencesSaveOutcome(const CFString* domain);

/// Whether the folder lets this user save, as far as that shows without writing.
FileOutcome preferencesSaveOutlook(const CFString* domain);

/// Whether keys are set but not written.
bool preferencesAreUnsaved(const CFString* domain);

/// Writes this user's values, unwritten ones included, to another file, which is replaced as a
/// whole. The domain stays unsaved.
FileOutcome preferencesSaveCopy(const CFString* domain, const std::string& path);

/// The domains that this process has used. They live as long as the process.
std::vector<const CFString*> preferencesDomainsInUse();
