// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// Keys and values of a desktop entry's group [Desktop Entry]. Escapes in values are resolved.
/// Localized keys are left out.
using DesktopEntry = std::map<std::string, std::string>;

/// Empty when the file can't be read, or is larger than 1 MiB.
DesktopEntry readDesktopEntry(const std::string& path);

/// Empty for a key that isn't there.
std::string desktopEntryValue(const DesktopEntry& entry, const std::string& key);

/// Whether it is an application, isn't hidden, and the program in TryExec exists.
bool isInstalledApplication(const DesktopEntry& entry);
