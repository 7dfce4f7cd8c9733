// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What the command line asks for.
struct Arguments {
    enum class Task { Show, Command, Serve, Check, Help, Version, Misuse };

    Task task = Task::Show;
    std::string bundle;  ///< path of the bundle; empty for the one that belongs to this program
    std::string section; ///< of the pane, to be shown first; empty for its own choice
};

/// The text that --help prints, in English.
extern const char* const kUsage;

Arguments parseArguments(int argc, char** argv);

/// The path of the bundle that lies beside this program, in its build folder or where both are
/// installed; empty when there is none.
std::string findOwnBundle();

/// Loads the user's language from that bundle. An application object must exist.
void loadOwnLocalizations();
