// SPDX-License-Identifier: MIT
#include "src/commands/command.h"
#include "src/record/settings.h"
#include "src/record/settingwords.h"

#include <cstdio>

namespace {

/// For bash, with the names of the commands, the settings, their values, what is done with
/// profiles, and the sections. What may have a blank isn't given to compgen, which expands it as
/// the shell does.
constexpr char kCompletion[] = R"bash(_korvex_preferences() {
    local word=${COMP_WORDS[COMP_CWORD]//\\/} words= lines= line
    case $COMP_CWORD:${COMP_WORDS[1]} in
    1:*) words='%s' ;;
    *:get | *[02468]:set) words='%s' ;;
    *:reset) words='all %s' ;;
    *:set)
        case ${COMP_WORDS[COMP_CWORD - 1]} in
%s        esac ;;
    2:profile) words='%s' ;;
    *:profile)
        lines=$("${COMP_WORDS[0]}" profile list --json |
            sed -n 's/.*"name": "\([^"\\]*\)".*/\1/p') ;;
    *:show) words='%s' ;;
    *:press | *:release) words='%s' ;;
    *:export | *:import) lines=$(compgen -f -- "$word") ;;
    esac
    case $word in -*) words='--help --json --yes' ;; esac
    COMPREPLY=($(compgen -W "$words" -- "$word"))
    [ -n "$lines" ] || return 0
    compopt -o filenames 2>/dev/null || :
    while read -r line; do
        [[ $line != "$word"* ]] || COMPREPLY+=("$line")
    done <<<"$lines"
}
complete -F _korvex_preferences korvex-preferences
)bash";

/// The values of a choice as a case of the script, a line each. Empty for any other setting.
std::string completedValues(const Setting& setting) {
    std::string lines;
    for (const char* word : wordsOf(setting).words)
        lines += (lines.empty() ? "" : "\n") + std::string(word);
    return lines.empty() ? ""
                         : "        " + std::string(setting.key) + ") lines='" + lines + "' ;;\n";
}

/// Escapes for roff: a minus isn't a hyphen, and no line begins with a point.
std::string roff(const std::string& text) {
    std::string result = text.starts_with('.') ? "\\&" : "";
    for (const char c : text)
        result += c == '-' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    return result;
}

void printItem(const std::string& head, const std::string& text) {
    std::printf(".TP\n.B %s\n%s\n", roff(head).c_str(), roff(text).c_str());
}

void printHeading(const std::string& text) {
    std::printf(".SH %s\n", text.c_str());
}

std::string describe(const Setting& setting) {
    return joined(Joint::Note, {localized("Settings", setting.name), takenText(setting)});
}

std::string spaced(const std::string& text, const std::string& word) {
    return text + (text.empty() ? "" : " ") + word;
}

} // namespace

int runManual(const CommandLine&) {
    printHeading(localized("Commands", "COMMANDS", "a heading of the manual page"));
    std::puts(
        roff(localized(
                 "Commands",
                 "None but show needs a display. A change goes through the open window if there "
                 "is one; else it is stored, and sent to the running agent."))
            .c_str());
    for (const Command& command : commands())
        printItem(std::string(command.name) + " " + operandsOf(command),
                  localized("Commands", command.does));
    printItem("--json", localized("Commands", kJsonHelp));
    printItem("--yes", localized("Commands", kYesHelp));
    printHeading(localized("Commands", "SETTINGS", "a heading of the manual page"));
    for (const Setting& setting : kSettings)
        printItem(setting.key, describe(setting));
    return kCommandDone;
}

int runCompletion(const CommandLine&) {
    std::string names = "help", keys, values, verbs, sections, hotKeys;
    for (const Command& command : commands())
        names = spaced(names, command.name);
    for (const Setting& setting : kSettings) {
        keys = spaced(keys, setting.key);
        values += completedValues(setting);
    }
    for (const ProfileVerb& verb : profileVerbs())
        verbs = spaced(verbs, verb.name);
    for (const std::string& section : sectionNames())
        sections = spaced(sections, section);
    for (const char* name : hotKeyNames())
        hotKeys = spaced(hotKeys, name);
    std::printf(kCompletion, names.c_str(), keys.c_str(), keys.c_str(), values.c_str(),
                verbs.c_str(), sections.c_str(), hotKeys.c_str());
    return kCommandDone;
}
