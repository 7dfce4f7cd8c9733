#include "platform/CoreFoundation/XDGFolders.h"

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

} // namespace

std::string xdgConfigHome() {
    const std::string folder = absoluteVariable("XDG_CONFIG_HOME");
    return folder.empty() ? homeFolder() + "/.config" : folder;
}

std::string xdgSystemConfig() {
    const char* value = std::getenv("XDG_CONFIG_DIRS");
    std::istringstream folders(value ? value : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (folder.starts_with('/'))
            return folder;
    }
    return "/etc/xdg";
}
