// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#include <functional>
#include <optional>

/// The frame of the window that was used last and is still on the screen, in global coordinates.
/// This program's own windows don't count. None without such a window, or on a platform that
/// doesn't tell (all but X11).
std::optional<CGRect> lastUsedWindow();

/// Calls `changed` whenever the result may be another one. There is one watcher. An empty function
/// removes it.
void watchLastUsedWindow(std::function<void()> changed);
