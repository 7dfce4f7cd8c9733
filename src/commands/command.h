// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/Localization.h"
#include "src/commands/commands.h"
#include "src/record/PrefsRecord.h"

#include <string>
#include <vector>

/// The arguments after a command's name.
struct CommandLine {
    std::vector<std::string> operands;
    bool json = false; ///< --json: output for programs
    bool yes = false;  ///< --yes: don't ask
    bool help = false; ///< --help: not this, but how
};

struct Command {
    const char* name;
    const char* operands; ///< as in the help text
    const char* does;     ///< a sentence
    int (*run)(const CommandLine& line);
    std::size_t fewest = 0, most = 0; ///< operands; most 0: no upper limit
};

inline constexpr char kJsonHelp[] =
    LOCALIZABLE("Commands", "answers for programs: numbers are numbers, yes and no are true and "
                            "false, and what changes is a list of key, from and to");
inline constexpr char kYesHelp[] =
    LOCALIZABLE("Commands", "lets import change the settings; no other command asks");

/// In the order of the help text.
std::span<const Command> commands();

/// In the user's language. Empty when the command takes none.
std::string operandsOf(const Command& command);

/// Prints "korvex-preferences: message" to standard error, and returns kCommandFailed.
int commandFailed(const std::string& message);
/// The same for a setting's key that doesn't exist.
int noSuchSetting(const std::string& key);

// ListCommands.cpp
int runList(const CommandLine& line);
int runGet(const CommandLine& line);

// ChangeCommands.cpp
int runSet(const CommandLine& line);
int runReset(const CommandLine& line);

// FileCommands.cpp

/// Prints what is different, for programs.
void printChangesJson(const PrefsRecord& before, const PrefsRecord& after);

int runExport(const CommandLine& line);
int runImport(const CommandLine& line);
int runProfile(const CommandLine& line);

struct ProfileVerb {
    const char* name;
    std::size_t fewest, most; ///< names of profiles that follow it
    int (*run)(const CommandLine& line);
};

std::span<const ProfileVerb> profileVerbs();

// SwitchCommands.cpp

/// The hot keys' names, as `press` and `release` take them, in the record's order.
std::span<const char* const> hotKeyNames();
int runPress(const CommandLine& line);
int runRelease(const CommandLine& line);
int runShortcuts(const CommandLine& line);

// ShowCommand.cpp

/// In the form's order, as `show` takes them; empty without the pane's bundle.
std::vector<std::string> sectionNames();
/// Becomes the window's program. Returns only when it fails.
int runShow(const CommandLine& line);

// Manual.cpp: both are made from the tables of commands and settings
int runCompletion(const CommandLine& line);
int runManual(const CommandLine& line);
