// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// The user's and the system's base folders (XDG), as the environment names them now. A
// value that is unset, empty or not absolute counts as unset.

/// $XDG_CONFIG_HOME, or .config in the home folder.
std::string xdgConfigHome();

/// $XDG_STATE_HOME, or .local/state in the home folder.
std::string xdgStateHome();

/// The absolute folders of $XDG_CONFIG_DIRS, or /etc/xdg. Never empty; the first wins.
std::vector<std::string> xdgSystemConfigFolders();

/// $XDG_DATA_HOME, or .local/share in the home folder; then the absolute folders of $XDG_DATA_DIRS,
/// or /usr/local/share and /usr/share. The first wins.
std::vector<std::string> xdgDataFolders();
