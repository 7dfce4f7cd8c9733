// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

// The settings without a window: `korvex-preferences get scanner.lineScanTime` and the like.
// Results go to standard output and faults to standard error, both in UTF-8.

enum CommandResult {
    kCommandDone = 0,
    kCommandFailed = 1,  ///< it couldn't be done; nothing was changed
    kCommandMisused = 2, ///< there is no such command, or its arguments are wrong
};

/// Called by name from the program that loads the pane's library. `arguments` are a command's name
/// and what follows it. Needs an event loop's application object, but no display.
extern "C" int korvexRunCommand(int count, const char* const* arguments);
