// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/DesktopEntry.h"

#include "platform/CoreFoundation/detail/FileReading.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <unistd.h>

namespace {

constexpr std::size_t kMaxEntrySize = 1u << 20;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string unescaped(std::string_view value) {
    constexpr std::string_view letters = "sntr\\", meanings = " \n\t\r\\";
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const bool escape = value[i] == '\\' && i + 1 < value.size();
        const std::size_t letter = escape ? letters.find(value[i + 1]) : letters.npos;
        text += letter == letters.npos ? value[i] : meanings[letter];
        i += letter != letters.npos;
    }
    return text;
}

bool isExecutable(const std::string& program) {
    if (program.find('/') != program.npos)
        return access(program.c_str(), X_OK) == 0;
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((folder + '/' + program).c_str(), X_OK) == 0)
            return true;
    return false;
}

} // namespace

DesktopEntry readDesktopEntry(const std::string& path) {
    const FileContents file = readRegularFile(path, kMaxEntrySize);
    if (!file.data)
        return {};
    const auto bytes = file.data->bytes();
    std::string_view rest(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    DesktopEntry entry;
    bool inGroup = false;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const std::string_view text = trimmed(line);
        if (text.starts_with('[')) {
            inGroup = text == "[Desktop Entry]";
            continue;
        }
        const std::size_t equals = inGroup && !text.starts_with('#') ? text.find('=') : text.npos;
        const std::string_view key = trimmed(text.substr(0, equals));
        // Most lines are names in other languages, which end with a bracket.
        if (equals != text.npos && !key.ends_with(']'))
            entry.try_emplace(std::string(key), unescaped(trimmed(text.substr(equals + 1))));
    }
    return entry;
}

std::string desktopEntryValue(const DesktopEntry& entry, const std::string& key) {
    const auto found = entry.find(key);
    return found == entry.end() ? std::string() : found->second;
}

bool isInstalledApplication(const DesktopEntry& entry) {
    const std::string program = desktopEntryValue(entry, "TryExec");
    return desktopEntryValue(entry, "Type") == "Application" &&
           desktopEntryValue(entry, "Hidden") != "true" &&
           (program.empty() || isExecutable(program));
}
