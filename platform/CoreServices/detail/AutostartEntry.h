// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

// Desktop entries that start a program when a session begins, as the Desktop Application Autostart
// and Desktop Entry specifications of freedesktop.org have them.

struct AutostartEntry {
    /// What it starts: the bundle whose executable its Exec names, whether itself or through
    /// another program such as env; else the program, if that is an absolute path; else empty.
    std::string application;
    /// Whether a login to the desktop that is running heeds it: it isn't marked as deleted,
    /// switched off or for other desktops only, and the program that its TryExec names is there.
    bool isLive = false;
    /// Whether the user has marked it as deleted or switched off, in the desktop's own tool or by
    /// hand. Entries of hiddenAutostartEntryText aren't the user's.
    bool isSwitchedOff = false;
    /// The desktops that alone heed it, when that which is running isn't one: OnlyShowIn's value.
    std::string onlyElsewhere;
};

/// None when the file can't be read or isn't an application's desktop entry.
std::optional<AutostartEntry> readAutostartEntry(const std::string& path);

/// The text of an entry that starts the executable, an absolute path, under that name, but not on
/// the desktops in `notShowIn`, each with a semicolon after it.
std::string autostartEntryText(const std::string& name, const std::string& executable,
                               const std::string& notShowIn);

/// The text of the entry with all but what switches it off.
std::string switchedOnEntryText(const std::string& path);

/// The text of an entry that starts nothing, and keeps the system's entry of the same file name
/// from starting. It still tells which application it was for.
std::string hiddenAutostartEntryText(const std::string& name, const std::string& application);
