// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

// Desktop entries that start a program at login. They follow the freedesktop.org specifications
// Desktop Application Autostart and Desktop Entry.

struct AutostartEntry {
    /// What it starts. The bundle whose executable is named in Exec, directly or behind a program
    /// such as env. Else the program, if it is an absolute path. Else empty.
    std::string application;
    /// Whether a login to the running desktop starts it. It must not be deleted, switched off or
    /// only for other desktops, and the program in TryExec must exist.
    bool isLive = false;
    /// Whether the user has deleted it or switched it off. That doesn't hold for entries of
    /// hiddenAutostartEntryText.
    bool isSwitchedOff = false;
    /// OnlyShowIn's value when the running desktop isn't in it; else empty.
    std::string onlyElsewhere;
    /// Whether NotShowIn names the running desktop.
    bool isNotHere = false;
};

/// None when the file can't be read or is no application's desktop entry.
std::optional<AutostartEntry> readAutostartEntry(const std::string& path);

/// The line that restricts an entry to the running desktop.
std::string onlyHereLine();

/// An entry that starts the executable, an absolute path, under that name. `desktops` is empty or
/// the line that says on which ones.
std::string autostartEntryText(const std::string& name, const std::string& executable,
                               const std::string& desktops);

/// The entry's text without the lines that switch it off.
std::string switchedOnEntryText(const std::string& path);

/// An entry that starts nothing, and keeps the system's entry of the same file name from being
/// started. It names the application that it was for.
std::string hiddenAutostartEntryText(const std::string& name, const std::string& application);
