// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/commands/store.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

constexpr Command kCommands[] = {
    {"list", "",
     LOCALIZABLE("Commands", "Shows every setting: its key, value, default, range and what it is."),
     runList, 0, 0},
    {"get", LOCALIZABLE("Commands", "KEY…"),
     LOCALIZABLE("Commands", "Shows the value of settings, as set takes it in every language."),
     runGet, 1, 0},
    {"set", LOCALIZABLE("Commands", "KEY VALUE…"), LOCALIZABLE("Commands", "Changes settings."),
     runSet, 2, 0},
    {"reset", LOCALIZABLE("Commands", "KEY…"),
     LOCALIZABLE("Commands", "Resets settings to their defaults; \"all\" stands for all of them."),
     runReset, 1, 0},
    {"export", LOCALIZABLE("Commands", "FILE"),
     LOCALIZABLE("Commands", "Writes the settings to a file; - stands for standard output."),
     runExport, 1, 1},
    {"import", LOCALIZABLE("Commands", "FILE"),
     LOCALIZABLE("Commands", "Shows what a file would change; with --yes, changes it. - stands "
                             "for standard input."),
     runImport, 1, 1},
    {"profile", LOCALIZABLE("Commands", "list|use|compare|save|rename|delete [NAME…]"),
     LOCALIZABLE("Commands", "Lists, uses and compares named states of the settings; compare says "
                             "what differs between two, or between one and the settings."),
     runProfile, 1, 3},
    {"show", LOCALIZABLE("Commands", "SECTION"),
     LOCALIZABLE("Commands", "Opens the window at that section, or brings it to the front there."),
     runShow, 1, 1},
    {"press", "[on-off|scan|cancel|settings|second-scan]",
     LOCALIZABLE("Commands", "For a shortcut of a Wayland desktop: tells Korvex that this key, or "
                             "else the scan key, went down."),
     runPress, 0, 1},
    {"release", "[on-off|scan|cancel|settings|second-scan]",
     LOCALIZABLE("Commands", "The same when it comes up."), runRelease, 0, 1},
    {"shortcuts", "",
     LOCALIZABLE("Commands", "Prints such shortcuts for your hot keys, as sway's configuration has "
                             "them."),
     runShortcuts, 0, 0},
    {"completion", "", LOCALIZABLE("Commands", "Prints the completion for bash."), runCompletion, 0,
     0},
    {"manual", "",
     LOCALIZABLE("Commands", "Prints the manual page's part on commands and settings."), runManual,
     0, 0},
};

int printHelp() {
    std::printf(
        "%s\n\n",
        localized("Commands", "Usage: korvex-preferences COMMAND [--json] [--yes] …").c_str());
    for (const Command& command : kCommands)
        std::printf("  %s %s\n      %s\n", command.name, operandsOf(command).c_str(),
                    localized("Commands", command.does).c_str());
    std::printf("\n  --json  %s\n  --yes   %s\n", localized("Commands", kJsonHelp).c_str(),
                localized("Commands", kYesHelp).c_str());
    return kCommandDone;
}

int misused(const std::string& message) {
    commandFailed(message);
    std::fprintf(stderr, "%s\n", localized("Commands", "See korvex-preferences help.").c_str());
    return kCommandMisused;
}

/// Separates options from operands. Options end at "--". Returns an unknown option, else an empty
/// text.
std::string parse(std::span<const char* const> arguments, CommandLine& line) {
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
        else if (argument == "--help")
            line.help = true;
        else
            return argument;
    }
    return {};
}

} // namespace

std::string operandsOf(const Command& command) {
    return *command.operands ? localized("Commands", command.operands) : "";
}

std::span<const Command> commands() {
    return kCommands;
}

int commandFailed(const std::string& message) {
    std::fprintf(stderr, "korvex-preferences: %s\n", message.c_str());
    return kCommandFailed;
}

int noSuchSetting(const std::string& key) {
    commandFailed(filled(localized("Commands", "there is no setting \"%1\""), {key}));
    std::fprintf(stderr, "%s\n", localized("Commands", "See korvex-preferences list.").c_str());
    return kCommandFailed;
}

namespace {

int run(int count, const char* const* arguments) {
    const std::string name = count > 0 ? arguments[0] : "help";
    if (name == "help")
        return printHelp();
    const auto* command =
        std::ranges::find_if(kCommands, [&](const Command& known) { return name == known.name; });
    if (command == std::end(kCommands))
        return misused(filled(localized("Commands", "there is no command \"%1\""), {name}));
    CommandLine line;
    if (const auto unknown = parse({arguments + 1, arguments + count}, line); !unknown.empty())
        return misused(filled(localized("Commands", "there is no option \"%1\""), {unknown}));
    if (line.help)
        return printHelp();
    const std::size_t most = command->most ? command->most : command->fewest ? SIZE_MAX : 0;
    if (line.operands.size() < command->fewest || line.operands.size() > most)
        return misused(
            *command->operands
                ? filled(localized("Commands", "%1 takes %2"), {name, operandsOf(*command)})
                : filled(localized("Commands", "%1 takes no operand"), {name}));
    nameActions();
    return command->run(line);
}

} // namespace

/// A reader that has gone has what it wanted, but the rest wasn't written.
int korvexRunCommand(int count, const char* const* arguments) {
    const int result = run(count, arguments);
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return result;
    return errno == EPIPE ? int{kCommandFailed}
                          : commandFailed(filled(localized("Commands", "standard output: %1"),
                                                 {std::strerror(errno)}));
}
