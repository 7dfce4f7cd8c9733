// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

// The settings without a window, for example `korvex-preferences get scanner.lineScanTime`. Results
// go to standard output, errors to standard error, both in UTF-8.

enum CommandResult {
    kCommandDone = 0,
    kCommandFailed = 1,  ///< failed; unless it says so, it changed nothing
    kCommandMisused = 2, ///< unknown command or wrong arguments
};

/// The program that loads the pane's library calls this by name. `arguments` are a command's name
/// and its arguments. Needs an application object with an event loop, but no display.
extern "C" int korvexRunCommand(int count, const char* const* arguments);
