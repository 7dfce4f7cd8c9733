// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/PreferencesOutcome.h"

#include <string>
#include <vector>

// A file of this process's own that outlives a crash of it, for work that isn't stored yet:
// $XDG_STATE_HOME/korvex/<name>.<process>.<its start>, for this user alone. The file is written
// whole and flushed to disk, on a thread of its own. Where it can't be written there is none, which
// stateFileOutcome tells; watchStateFile (ChangeWatch.h) says when to ask.
//
// One name a process. Main thread only; nothing here waits for more than one writing.

/// Writes the content soon, in place of what was kept before. Of several that come while the disk
/// is busy the last is written.
void keepStateFile(const std::string& name, std::string content);

/// Removes this process's file, and the left ones that were released.
void removeStateFile();

/// How the last writing ended; no trouble when there was none, or the file is removed.
PreferencesOutcome stateFileOutcome();

/// What became of the process that a state file belongs to.
enum class StateFileOwner { Gone, Running };

/// The paths of the files of that name with such an owner, the oldest first.
std::vector<std::string> findStateFiles(const std::string& name, StateFileOwner owner);

/// Removes the left file once this process's own is on disk.
void releaseLeftStateFile(std::string path);
