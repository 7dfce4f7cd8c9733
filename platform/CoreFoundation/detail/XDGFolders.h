// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// The user's and the system's XDG base folders, as the environment has them now. A value that is
// empty or not absolute counts as unset.

/// $XDG_CONFIG_HOME, or .config in the home folder.
std::string xdgConfigHome();

/// $XDG_STATE_HOME, or .local/state in the home folder.
std::string xdgStateHome();

/// The absolute folders of $XDG_CONFIG_DIRS, or /etc/xdg. Never empty. The first has precedence.
std::vector<std::string> xdgSystemConfigFolders();

/// $XDG_DATA_HOME, or .local/share in the home folder; then the absolute folders of $XDG_DATA_DIRS,
/// or /usr/local/share and /usr/share. The first has precedence.
std::vector<std::string> xdgDataFolders();
