// SPDX-License-Identifier: MIT
#include "src/commands/command.h"
#include "src/record/settings.h"
#include "src/record/settingwords.h"

#include <cstdio>

namespace {

/// For bash, with the names of the commands, the settings, what is done with profiles, and the
/// sections. What profiles are called isn't given to compgen, which expands it as the shell does.
constexpr char kCompletion[] = R"bash(_korvex_preferences() {
    local word=${COMP_WORDS[COMP_CWORD]} name
    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W '%s' -- "$word"))
        return
    fi
    case ${COMP_WORDS[1]} in
    get | set | reset) COMPREPLY=($(compgen -W '%s' -- "$word")) ;;
    profile)
        if [ "$COMP_CWORD" -eq 2 ]; then
            COMPREPLY=($(compgen -W '%s' -- "$word"))
            return
        fi
        compopt -o filenames 2>/dev/null || :
        while read -r name; do
            [[ $name != "$word"* ]] || COMPREPLY+=("$name")
        done < <("${COMP_WORDS[0]}" profile list --json |
            sed -n 's/.*"name": "\([^"\\]*\)".*/\1/p') ;;
    show) COMPREPLY=($(compgen -W '%s' -- "$word")) ;;
    export | import) COMPREPLY=($(compgen -f -- "$word")) ;;
    esac
    case $word in -*) COMPREPLY=($(compgen -W '--help --json --yes' -- "$word")) ;; esac
}
complete -F _korvex_preferences korvex-preferences
)bash";

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
    std::vector<std::string> range;
    if (setting.limits.maximum > 0)
        range.push_back(rangeText(setting.limits));
    for (std::size_t i = 0; i < setting.choices.size(); ++i)
        range.push_back(std::to_string(i) + " " + localized("Choices", setting.choices[i]));
    return joined(Joint::Note, {localized("Settings", setting.name), joined(Joint::Items, range)});
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
    printItem("--json", localized("Commands", "answers for programs"));
    printItem("--yes", localized("Commands", "doesn't ask"));
    printHeading(localized("Commands", "SETTINGS", "a heading of the manual page"));
    for (const Setting& setting : kSettings)
        printItem(setting.key, describe(setting));
    return kCommandDone;
}

int runCompletion(const CommandLine&) {
    std::string names = "help", keys, verbs, sections;
    for (const Command& command : commands())
        names = spaced(names, command.name);
    for (const Setting& setting : kSettings)
        keys = spaced(keys, setting.key);
    for (const ProfileVerb& verb : profileVerbs())
        verbs = spaced(verbs, verb.name);
    for (const std::string& section : sectionNames())
        sections = spaced(sections, section);
    std::printf(kCompletion, names.c_str(), keys.c_str(), verbs.c_str(), sections.c_str());
    return kCommandDone;
}
