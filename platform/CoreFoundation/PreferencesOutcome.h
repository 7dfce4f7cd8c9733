// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <string>
#include <vector>

// What happened to the file of this user's preference domain (CFPreferences.h), so that the host
// can tell the user. To retry a failed save, call CFPreferencesAppSynchronize: unwritten keys are
// still marked.

enum class FileTrouble {
    None,
    Damaged,    ///< no property list with a dictionary at its root; reads as empty
    NotAllowed, ///< this user may not read or write it
    ReadOnly,   ///< its file system is read-only
    Full,       ///< the disk or the user's quota is full
    InUse,      ///< another program held the domain's lock for two seconds
    InTheWay,   ///< there is a folder, pipe or the like in its place
    TooLarge,   ///< the values exceed kPropertyListMaxSize bytes
    Failed      ///< another system error
};

struct PreferencesOutcome {
    FileTrouble trouble = FileTrouble::None;
    std::string path; ///< what couldn't be read or written, else the file; may be a folder or lock.
                      ///< Where the damaged file is now.
    bool isKeptAside = false; ///< Damaged only: a save has renamed the file to `path`
    int error = 0;            ///< errno, or 0 when no system call failed
};

/// Of any file: what errno's number says of it; no trouble for 0.
PreferencesOutcome outcomeOf(int error, const std::string& path);

/// The state of this user's file when it was last read. A missing file is no trouble. Once a
/// damaged file was kept aside, that stays the outcome.
PreferencesOutcome preferencesLoadOutcome(const CFString* domain);

/// How the last save ended. No trouble before the first one.
PreferencesOutcome preferencesSaveOutcome(const CFString* domain);

/// Whether the folder lets this user save, as far as that shows without writing.
PreferencesOutcome preferencesSaveOutlook(const CFString* domain);

/// Whether keys are set but not written.
bool preferencesAreUnsaved(const CFString* domain);

/// Writes this user's values, unwritten ones included, to another file, which is replaced as a
/// whole. The domain stays unsaved.
PreferencesOutcome preferencesSaveCopy(const CFString* domain, const std::string& path);

/// The domains that this process has used. They live as long as the process.
std::vector<const CFString*> preferencesDomainsInUse();
