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

/// The absolute ones among the folders that the variable lists, else `defaults`.
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
    const std::string folder = absoluteVariable("XDG_CONFIG_HOME");
    return folder.empty() ? homeFolder() + "/.config" : folder;
}

std::vector<std::string> xdgSystemConfigFolders() {
    return foldersOfVariable("XDG_CONFIG_DIRS", {"/etc/xdg"});
}

std::string xdgSystemConfig() {
    return xdgSystemConfigFolders().front();
}

std::vector<std::string> xdgDataFolders() {
    std::vector<std::string> folders =
        foldersOfVariable("XDG_DATA_DIRS", {"/usr/local/share", "/usr/share"});
    const std::string own = absoluteVariable("XDG_DATA_HOME");
    folders.insert(folders.begin(), own.empty() ? homeFolder() + "/.local/share" : own);
    return folders;
}
