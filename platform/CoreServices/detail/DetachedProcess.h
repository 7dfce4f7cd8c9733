// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// Starts a program to live on its own, also after this one; its process ID, or 0 when it can't be
/// executed. Waits for the exec itself, about a millisecond.
///
/// It has a session of its own, the root as its current folder, no signal blocked or ignored. Its
/// input and output are /dev/null, its errors go where this process's go; all other files are
/// closed. An executable that is named without a slash is looked for in $PATH.
///
/// The caller has it reaped (ProcessEnd.h).
pid_t startDetached(std::string executable, std::vector<std::string> arguments = {});
