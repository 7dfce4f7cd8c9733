// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// Starts a program that may outlive this one. Returns its process ID, or 0 when it can't be
/// executed. Waits for the exec, about a millisecond.
///
/// The program has its own login session, the root as current folder, and no signals blocked or
/// ignored. Input and output are /dev/null, errors go where this process's go. All other files are
/// closed. An executable without a slash in its name is looked for in $PATH.
///
/// The caller must have it reaped (ProcessEnd.h).
pid_t startDetached(std::string executable, std::vector<std::string> arguments = {});
