// SPDX-License-Identifier: MIT
#pragma once

/// Passes a command, such as "get" and its operands, on to the pane's library: no window is made
/// and no display is needed. Returns the exit status.
int runCommand(int argc, char** argv);
