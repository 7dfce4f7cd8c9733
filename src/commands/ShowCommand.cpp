// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/commands/store.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <unistd.h>

namespace {

/// The host's spelling: small letters, with dashes for blanks.
std::string nameOf(std::string section) {
    std::ranges::transform(section, section.begin(), [](unsigned char c) {
        return c == ' ' ? '-' : static_cast<char>(std::tolower(c));
    });
    return section;
}

} // namespace

std::vector<std::string> sectionNames() {
    const CFBundle* pane = paneBundle();
    const auto form =
        pane ? CFBundleCopyResourceURL(pane, CFSTR("Pane"), CFSTR("ui"), nullptr) : CFRef<CFURL>();
    std::vector<std::string> names;
    std::ifstream file(form ? form->path() : "");
    for (std::string line; std::getline(file, line);) {
        if (line.find("name=\"section\"") == std::string::npos)
            continue;
        const std::size_t end = line.rfind("</string>"), start = line.rfind('>', end) + 1;
        names.push_back(nameOf(line.substr(start, end - start)));
    }
    return names;
}

int runShow(const CommandLine& line) {
    const std::string name = nameOf(line.operands[0]);
    const std::vector<std::string> names = sectionNames();
    if (std::ranges::find(names, name) == names.end())
        return commandFailed(filled(localized("Commands", "there is no section \"%1\", but %2"),
                                    {line.operands[0], joined(Joint::Items, names)}));
    execl("/proc/self/exe", "korvex-preferences", "--section", name.c_str(), nullptr);
    return commandFailed(std::strerror(errno));
}
