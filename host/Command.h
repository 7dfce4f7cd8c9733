// SPDX-License-Identifier: MIT
#pragma once

/// Passes a command, such as "get" and its operands, to the pane's library. Needs no window and no
/// display. Returns the exit status.
int runCommand(int argc, char** argv);
