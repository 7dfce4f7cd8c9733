// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr Command kCommands[] = {
    {"list", "", "Shows every setting: its key, value, default, range and what it is.", runList, 0,
     0},
    {"get", "KEY…", "Shows the value of settings.", runGet, 1, 0},
    {"set", "KEY VALUE…", "Changes settings.", runSet, 2, 0},
    {"reset", "KEY…", "Puts settings back to their defaults; \"all\" stands for all of them.",
     runReset, 1, 0},
    {"export", "FILE", "Writes the settings to a file; - stands for standard output.", runExport, 1,
     1},
    {"import", "FILE", "Shows what a file would change; with --yes, changes it.", runImport, 1, 1},
    {"profile", "list|use|save|rename|delete [NAME…]",
     "Lists and uses named states of the settings.", runProfile, 1, 3},
    {"completion", "", "Prints the completion for bash.", runCompletion, 0, 0},
    {"manual", "", "Prints the manual page's part on commands and settings.", runManual, 0, 0},
};

int printHelp() {
    std::puts("Usage: korvex-preferences COMMAND [--json] [--yes] …\n");
    for (const Command& command : kCommands)
        std::printf("  %s %s\n      %s\n", command.name, command.operands, command.does);
    std::puts("\n  --json  answers for programs\n  --yes   doesn't ask");
    return kCommandDone;
}

int misused(const std::string& message) {
    std::fprintf(stderr, "korvex-preferences: %s\nSee korvex-preferences help.\n", message.c_str());
    return kCommandMisused;
}

/// Splits options from operands; false when an option isn't known. Nothing behind "--" is one.
bool parse(std::span<const char* const> arguments, CommandLine& line) {
    bool options = true;
    for (const std::string argument : arguments) {
        if (!options || argument == "-" || !argument.starts_with('-'))
            line.operands.push_back(argument);
        else if (argument == "--")
            options = false;
        else if (argument == "--json")
            line.json = true;
        else if (argument == "--yes")
            line.yes = true;
        else
            return false;
    }
    return true;
}

} // namespace

std::span<const Command> commands() {
    return kCommands;
}

int commandFailed(const std::string& message) {
    std::fprintf(stderr, "korvex-preferences: %s\n", message.c_str());
    return kCommandFailed;
}

int korvexRunCommand(int count, const char* const* arguments) {
    const std::string name = count > 0 ? arguments[0] : "help";
    if (name == "help")
        return printHelp();
    const auto* command =
        std::ranges::find_if(kCommands, [&](const Command& known) { return name == known.name; });
    if (command == std::end(kCommands))
        return misused("there is no command \"" + name + "\"");
    CommandLine line;
    if (!parse({arguments + 1, arguments + count}, line))
        return misused("there is no such option");
    const std::size_t most = command->most ? command->most : command->fewest ? SIZE_MAX : 0;
    if (line.operands.size() < command->fewest || line.operands.size() > most)
        return misused(name + std::string(" takes ") +
                       (*command->operands ? command->operands : "no operand"));
    return command->run(line);
}
