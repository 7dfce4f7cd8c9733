// SPDX-License-Identifier: MIT
// Updating the login items, in folders full of other programs' entries.

#include "bench/Figures.h"
#include "src/login/launch.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

constexpr int kEntries = 200; ///< of other programs, in each folder

fs::path folderOf(const char* variable) {
    return fs::path(std::getenv(variable)) / "autostart";
}

const fs::path& ownFolder() {
    static const fs::path folder = folderOf("XDG_CONFIG_HOME");
    return folder;
}

/// An entry as applications install it, with its name in twenty languages.
std::string otherEntry(int number) {
    const std::string name = "Program " + std::to_string(number);
    std::string text = "[Desktop Entry]\nType=Application\nName=" + name + '\n';
    for (char language = 'a'; language <= 't'; ++language)
        text += std::string("Name[") + language + "a]=" + name + "\nComment[" + language +
                "a]=Does what " + name + " does\n";
    return text + "Exec=/usr/bin/env program-" + std::to_string(number) +
           " --background\nIcon=program\nOnlyShowIn=GNOME;Unity;\nX-GNOME-Autostart-Phase=Panel\n"
           "X-GNOME-AutoRestart=true\n";
}

void fill(const fs::path& folder) {
    fs::create_directories(folder);
    for (int i = 0; i < kEntries; ++i)
        std::ofstream(folder / ("program-" + std::to_string(i) + ".desktop")) << otherEntry(i);
}

/// The same calls as in `updateLaunchUI`.
void update(const CFURL* agent) {
    launchSetAppIsAutoLaunched(agent, false, true);
    launchSetAppIsAutoLaunched(agent, true, false);
}

/// When a file in the folder was last added, removed or replaced.
timespec lastChange() {
    struct stat status {};

    stat(ownFolder().c_str(), &status);
    return status.st_mtim;
}

double updateLoginItems() {
    static const auto agent = CFURLCreateFromFileSystemRepresentation(
        KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app", true);
    static const bool filled = [] {
        fill(ownFolder());
        fill(folderOf("XDG_CONFIG_DIRS"));
        update(agent.get());
        return true;
    }();
    const timespec before = lastChange();
    const double seconds = workSecondsOf([] { update(agent.get()); });
    const timespec after = lastChange();
    const bool written = before.tv_sec != after.tv_sec || before.tv_nsec != after.tv_nsec;
    return filled && !written && launchAppIsAutoLaunched(agent.get()) ? seconds : -1;
}

/// Lists both folders and reads every entry once. The list is asked twice, and parses.
double readEntries() {
    std::size_t bytes = 0;
    const double seconds = workSecondsOf([&bytes] {
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            for (const auto& entry : fs::directory_iterator(folderOf(variable))) {
                std::ifstream file(entry.path());
                const std::string text{std::istreambuf_iterator<char>(file), {}};
                bytes += text.size();
            }
    });
    return bytes > 0 ? seconds : -1;
}

} // namespace

void addLaunchFigures() {
    addFigure("updateLaunchUI with 200 entries in both folders", {Limit::Times, 5},
              updateLoginItems, readEntries);
}
