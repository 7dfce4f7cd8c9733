// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/XDGFolders.h"

#include <cstdlib>
#include <pwd.h>
#include <sstream>
#include <unistd.h>

namespace {

/// Empty when the variable isn't an absolute path.
std::string absoluteVariable(const char* name) {
    const char* value = std::getenv(name);
    return value && *value == '/' ? value : std::string();
}

std::string homeFolder() {
    const std::string home = absoluteVariable("HOME");
    if (!home.empty())
        return home;
    const passwd* user = getpwuid(getuid());
    return user ? user->pw_dir : "/";
}

/// The folder in the variable, else the one in the home folder.
std::string userFolder(const char* variable, const char* inHome) {
    const std::string folder = absoluteVariable(variable);
    return folder.empty() ? homeFolder() + inHome : folder;
}

/// The absolute folders in the variable's list, else `defaults`.
std::vector<std::string> foldersOfVariable(const char* name, std::vector<std::string> defaults) {
    const char* value = std::getenv(name);
    std::istringstream list(value ? value : "");
    std::vector<std::string> folders;
    for (std::string folder; std::getline(list, folder, ':');)
        if (folder.starts_with('/'))
            folders.push_back(folder);
    return folders.empty() ? defaults : folders;
}

} // namespace

std::string xdgConfigHome() {
    return userFolder("XDG_CONFIG_HOME", "/.config");
}

std::string xdgStateHome() {
    return userFolder("XDG_STATE_HOME", "/.local/state");
}

std::vector<std::string> xdgSystemConfigFolders() {
    return foldersOfVariable("XDG_CONFIG_DIRS", {"/etc/xdg"});
}

std::vector<std::string> xdgDataFolders() {
    std::vector<std::string> folders =
        foldersOfVariable("XDG_DATA_DIRS", {"/usr/local/share", "/usr/share"});
    folders.insert(folders.begin(), userFolder("XDG_DATA_HOME", "/.local/share"));
    return folders;
}
