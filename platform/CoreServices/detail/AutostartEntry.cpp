// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AutostartEntry.h"

#include "platform/CoreServices/detail/DesktopEntry.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view kExecutables = "/Contents/Linux/";

/// The arguments of an Exec value, without field codes. Outside double quotes a backslash is an
/// ordinary character.
std::vector<std::string> execArguments(std::string_view exec) {
    std::vector<std::string> arguments;
    bool quoted = false, begun = false;
    for (std::size_t i = 0; i < exec.size(); ++i) {
        const char next = i + 1 < exec.size() ? exec[i + 1] : '\0';
        if (exec[i] == '"') {
            quoted = !quoted;
        } else if (exec[i] == ' ' && !quoted) {
            begun = false;
            continue;
        }
        if (!begun)
            arguments.emplace_back();
        begun = true;
        if (exec[i] == '"')
            continue;
        if (exec[i] == '%') {
            ++i;
            if (next != '%')
                continue;
        } else if (quoted && exec[i] == '\\' && next != '\0') {
            ++i;
        }
        arguments.back() += exec[i];
    }
    return arguments;
}

/// The bundle that the executable belongs to. Empty when none.
std::string bundleOf(const std::string& executable) {
    const std::size_t folder = executable.rfind(kExecutables);
    if (!executable.starts_with('/') || folder == std::string::npos ||
        executable.find('/', folder + kExecutables.size()) != std::string::npos)
        return {};
    return executable.substr(0, folder);
}

std::string applicationOf(std::string_view exec) {
    const std::vector<std::string> arguments = execArguments(exec);
    for (const std::string& argument : arguments)
        if (std::string bundle = bundleOf(argument); !bundle.empty())
            return bundle;
    return !arguments.empty() && arguments.front().starts_with('/') ? arguments.front() : "";
}

constexpr char kHiddenHere[] = "X-Korvex-Hidden"; ///< marks entries that only hide the system's

/// Keys that mark an entry as deleted or switched off.
constexpr struct {
    const char *key, *value;
} kSwitches[] = {
    {"Hidden", "true"},
    {"X-GNOME-Autostart-enabled", "false"},
    {"X-MATE-Autostart-enabled", "false"},
};

bool isSwitchedOff(const DesktopEntry& entry) {
    return std::ranges::any_of(kSwitches, [&](const auto& each) {
        return desktopEntryValue(entry, each.key) == each.value;
    });
}

/// Whether the line sets one of these keys.
bool isSwitch(const std::string& line) {
    const std::string key = line.substr(0, line.find_first_of("= \t"));
    return std::ranges::any_of(kSwitches, [&](const auto& each) { return each.key == key; });
}

/// Whether the list has one of the running desktops. A semicolon follows each.
bool listsThisDesktop(const std::string& list) {
    const char* value = std::getenv("XDG_CURRENT_DESKTOP");
    std::istringstream running(value ? value : "");
    for (std::string desktop; std::getline(running, desktop, ':');)
        if ((';' + list + ';').find(';' + desktop + ';') != std::string::npos)
            return true;
    return false;
}

bool isForThisDesktop(const DesktopEntry& entry) {
    const bool isRestricted = entry.contains("OnlyShowIn");
    return (!isRestricted || listsThisDesktop(desktopEntryValue(entry, "OnlyShowIn"))) &&
           !listsThisDesktop(desktopEntryValue(entry, "NotShowIn"));
}

/// The text, escaped as a value of type string.
std::string escaped(std::string_view text) {
    constexpr std::string_view meanings = "\n\t\r\\", letters = "ntr\\";
    std::string value;
    for (const char c : text) {
        const std::size_t escape = meanings.find(c);
        if (escape == meanings.npos)
            value += c;
        else
            value.append({'\\', letters[escape]});
    }
    return value;
}

/// One argument of an Exec value.
std::string quotedArgument(std::string_view argument) {
    std::string quoted = "\"";
    for (const char c : argument) {
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos)
            quoted += '\\';
        quoted += c;
        if (c == '%')
            quoted += '%';
    }
    return quoted + '"';
}

std::string entryText(const std::string& name, const std::string& program,
                      const std::string& more) {
    return "[Desktop Entry]\nType=Application\nName=" + escaped(name) +
           "\nExec=" + escaped(quotedArgument(program)) + '\n' + more + '\n';
}

} // namespace

std::optional<AutostartEntry> readAutostartEntry(const std::string& path) {
    const DesktopEntry entry = readDesktopEntry(path);
    if (desktopEntryValue(entry, "Type") != "Application")
        return std::nullopt;
    return AutostartEntry{applicationOf(desktopEntryValue(entry, "Exec")),
                          isInstalledApplication(entry) && !isSwitchedOff(entry) &&
                              isForThisDesktop(entry),
                          isSwitchedOff(entry) && !entry.contains(kHiddenHere),
                          isForThisDesktop(entry) ? "" : desktopEntryValue(entry, "OnlyShowIn"),
                          listsThisDesktop(desktopEntryValue(entry, "NotShowIn"))};
}

std::string onlyHereLine() {
    const char* value = std::getenv("XDG_CURRENT_DESKTOP");
    std::string running = value ? value : "";
    std::ranges::replace(running, ':', ';');
    return "OnlyShowIn=" + running + ';';
}

std::string autostartEntryText(const std::string& name, const std::string& executable,
                               const std::string& desktops) {
    return entryText(name, executable,
                     "TryExec=" + escaped(executable) + (desktops.empty() ? "" : '\n' + desktops));
}

std::string switchedOnEntryText(const std::string& path) {
    std::ifstream file(path);
    std::string text;
    bool inGroup = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('['))
            inGroup = line.starts_with("[Desktop Entry]");
        if (!inGroup || !isSwitch(line))
            text += line + '\n';
    }
    return text;
}

std::string hiddenAutostartEntryText(const std::string& name, const std::string& application) {
    return entryText(name, application, std::string("Hidden=true\n") + kHiddenHere + "=true");
}
