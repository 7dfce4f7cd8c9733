#pragma once

#include <string>

// The base folders of the XDG Base Directory Specification, as the environment names them now. A
// value that is unset, empty or not absolute counts as unset.

/// $XDG_CONFIG_HOME, or .config in the home folder.
std::string xdgConfigHome();

/// The first absolute folder of $XDG_CONFIG_DIRS, or /etc/xdg.
std::string xdgSystemConfig();
