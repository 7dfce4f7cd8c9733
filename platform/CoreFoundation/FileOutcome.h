// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What happened to a file that was read or written.

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

struct FileOutcome {
    FileTrouble trouble = FileTrouble::None;
    std::string path; ///< what couldn't be read or written, else the file; may be a folder or lock.
                      ///< Where the damaged file is now.
    bool isKeptAside = false; ///< Damaged only: a save has renamed the file to `path`
    int error = 0;            ///< errno, or 0 when no system call failed
};

/// The outcome that errno's number stands for. No trouble for 0.
FileOutcome outcomeOf(int error, const std::string& path);
