// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AccessibilitySettings.h"

#include "platform/CoreServices/detail/DetachedProcess.h"
#include "platform/CoreServices/detail/ProcessEnd.h"

#include <cstdlib>
#include <sstream>

namespace {

constexpr struct {
    const char* desktop; ///< as XDG_CURRENT_DESKTOP has it
    const char* program;
    const char* page; ///< the program's argument; null for none
} kSettings[] = {
    {"GNOME", "gnome-control-center", "universal-access"},
    {"KDE", "systemsettings", "kcm_access"},
    {"KDE", "systemsettings5", "kcm_access"}, // Plasma before 5.27
    {"XFCE", "xfce4-accessibility-settings", nullptr},
    {"MATE", "mate-at-properties", nullptr},
    {"X-Cinnamon", "cinnamon-settings", "accessibility"},
};

bool open(const std::string& desktop) {
    for (const auto& settings : kSettings) {
        if (desktop != settings.desktop)
            continue;
        std::vector<std::string> arguments;
        if (settings.page)
            arguments.emplace_back(settings.page);
        if (const pid_t pid = startDetached(settings.program, arguments)) {
            reapAtItsEnd(pid);
            return true;
        }
    }
    return false;
}

} // namespace

// The variable names the desktop, then similar ones: "ubuntu:GNOME".
bool openAccessibilitySettings() {
    const char* value = std::getenv("XDG_CURRENT_DESKTOP");
    std::istringstream desktops(value ? value : "");
    for (std::string desktop; std::getline(desktops, desktop, ':');)
        if (open(desktop))
            return true;
    return false;
}
