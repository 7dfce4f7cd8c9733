// SPDX-License-Identifier: MIT
#include "src/commands/command.h"
#include "src/settings.h"

#include <cstdio>

namespace {

/// As roff reads it: a minus is no hyphen, and a line doesn't begin with a point.
std::string roff(const std::string& text) {
    std::string result = text.starts_with('.') ? "\\&" : "";
    for (const char c : text)
        result += c == '-' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    return result;
}

void printItem(const std::string& head, const std::string& text) {
    std::printf(".TP\n.B %s\n%s\n", roff(head).c_str(), roff(text).c_str());
}

std::string describe(const Setting& setting) {
    std::string text = setting.name;
    if (const SettingLimits& limits = setting.limits; limits.maximum > 0) {
        char range[100];
        std::snprintf(range, sizeof range, ": %g to %g %s", limits.minimum, limits.maximum,
                      limits.unit);
        text += range;
    }
    for (std::size_t i = 0; i < setting.choices.size(); ++i)
        text += (i ? ", " : ": ") + std::to_string(i) + " " + setting.choices[i];
    return text;
}

std::string words(std::string_view separator) {
    std::string text;
    for (const Setting& setting : kSettings)
        text += std::string(setting.key) + std::string(separator);
    return text;
}

} // namespace

int runManual(const CommandLine&) {
    std::puts(
        ".SH COMMANDS\nNone needs a display. A change goes through the open window if there is "
        "one; else it is stored, and sent to the running agent.");
    for (const Command& command : commands())
        printItem(std::string(command.name) + " " + command.operands, command.does);
    std::puts(".PP\nWith\n.B \\-\\-json\nthe answers are for programs;\n.B \\-\\-yes\n"
              "doesn't ask.\n.SH SETTINGS");
    for (const Setting& setting : kSettings)
        printItem(setting.key, describe(setting));
    return kCommandDone;
}

int runCompletion(const CommandLine&) {
    std::string names = "help";
    for (const Command& command : commands())
        names += std::string(" ") + command.name;
    std::printf(
        "_korvex_preferences() {\n"
        "    local word=${COMP_WORDS[COMP_CWORD]}\n"
        "    case ${COMP_WORDS[1]} in\n"
        "    get | set | reset) COMPREPLY=($(compgen -W '%s' -- \"$word\")) ;;\n"
        "    profile) COMPREPLY=($(compgen -W 'list use save rename delete' -- \"$word\")) ;;\n"
        "    export | import) COMPREPLY=($(compgen -f -- \"$word\")) ;;\n"
        "    esac\n"
        "    [ \"$COMP_CWORD\" -ne 1 ] || COMPREPLY=($(compgen -W '%s' -- \"$word\"))\n"
        "}\n"
        "complete -F _korvex_preferences korvex-preferences\n",
        words(" ").c_str(), names.c_str());
    return kCommandDone;
}
