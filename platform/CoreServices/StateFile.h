// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/FileOutcome.h"

#include <string>
#include <vector>

// A file that outlives a crash of this process, for work that isn't stored yet:
// $XDG_STATE_HOME/korvex/<name>.<process>.<its start>. Only this user can read it. A thread of its
// own writes it whole and flushes it to disk. If it can't be written there is none:
// stateFileOutcome says why, and watchStateFile (ChangeWatch.h) when to ask.
//
// A process uses one name. Main thread only. No call waits for more than one write.

/// Writes the content soon, and replaces earlier content. If several calls come while the disk is
/// busy, only the last is written.
void keepStateFile(const std::string& name, std::string content);

/// Removes this process's file and those that were released.
void removeStateFile();

/// How the last writing ended; no trouble when there was none, or the file is removed.
FileOutcome stateFileOutcome();

/// What became of the process that a state file belongs to.
enum class StateFileOwner { Gone, Running };

/// The paths of the files with that name and such an owner, the oldest first.
std::vector<std::string> findStateFiles(const std::string& name, StateFileOwner owner);

/// Removes that file once this process's own is on disk.
void releaseLeftStateFile(std::string path);
