// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The parsed command line.
struct Arguments {
    enum class Task { Show, Command, Serve, Check, Help, Version, Misuse };

    Task task = Task::Show;
    std::string bundle;  ///< path; empty for this program's own
    std::string section; ///< shown first; empty for the pane's own choice
};

/// The text that --help prints, in English.
extern const char* const kUsage;

Arguments parseArguments(int argc, char** argv);

/// The path of the bundle that belongs to this program, in the build folder or where it is
/// installed. Empty when there is none.
std::string findOwnBundle();

/// Loads the user's language from that bundle. Needs an application object.
void loadOwnLocalizations();
