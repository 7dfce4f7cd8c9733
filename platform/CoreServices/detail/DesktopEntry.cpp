// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/DesktopEntry.h"

#include "platform/CoreFoundation/detail/FileReading.h"

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
    std::istringstream lines(std::string(bytes.begin(), bytes.end()));
    DesktopEntry entry;
    bool inGroup = false;
    for (std::string line; std::getline(lines, line);) {
        const std::string_view text = trimmed(line);
        const std::size_t equals = text.find('=');
        if (text.starts_with('['))
            inGroup = text == "[Desktop Entry]";
        else if (inGroup && !text.starts_with('#') && equals != text.npos)
            entry.try_emplace(std::string(trimmed(text.substr(0, equals))),
                              unescaped(trimmed(text.substr(equals + 1))));
    }
    std::erase_if(entry, [](const auto& item) { return item.first.ends_with(']'); });
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
