// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <string>
#include <vector>

// What became of the file behind this user's copy of a preference domain (CFPreferences.h), for the
// host to tell the user. To try a failed save again, call CFPreferencesAppSynchronize: the keys
// that weren't written are still there.

enum class FileTrouble {
    None,
    Damaged,    ///< not a property list with a dictionary at its root; it reads as empty
    NotAllowed, ///< this user may not read or write it
    ReadOnly,   ///< it lies on a file system that is read-only
    Full,       ///< the disk, or the user's share of it, is full
    InUse,      ///< another program held the domain's lock for two seconds
    InTheWay,   ///< a folder, pipe or the like stands where the file or its folder belongs
    TooLarge,   ///< the values don't fit a file of kPropertyListMaxSize bytes
    Failed      ///< another error of the system
};

struct PreferencesOutcome {
    FileTrouble trouble = FileTrouble::None;
    std::string path; ///< what couldn't be read or written, else the file; may be a folder or lock.
                      ///< Where the damaged file is now.
    bool isKeptAside = false; ///< Damaged only: the file was renamed, to `path`, by a save
    int error = 0;            ///< errno, or 0 when no system call failed
};

/// Of any file: what errno's number says of it; no trouble for 0.
PreferencesOutcome outcomeOf(int error, const std::string& path);

/// How this user's file was found when last read, which is no later than now. A file that isn't
/// there is no trouble. Once a damaged file was kept aside, it stays the outcome.
PreferencesOutcome preferencesLoadOutcome(const CFString* domain);

/// How the last save ended; no trouble before the first one.
PreferencesOutcome preferencesSaveOutcome(const CFString* domain);

/// Whether the folder lets this user save, as far as can be told without writing.
PreferencesOutcome preferencesSaveOutlook(const CFString* domain);

/// Whether keys were set that aren't written yet.
bool preferencesAreUnsaved(const CFString* domain);

/// Writes this user's values, set ones included, to another file, which is replaced as a whole. The
/// domain stays unsaved.
PreferencesOutcome preferencesSaveCopy(const CFString* domain, const std::string& path);

/// The domains that this process has used. They live as long as the process.
std::vector<const CFString*> preferencesDomainsInUse();
