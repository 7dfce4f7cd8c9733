// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#include <functional>
#include <optional>

/// The frame of the window that was used last and is still in sight, in global coordinates, without
/// regard to this program's own. Empty when there is none, or where no program may know: only X11
/// tells.
std::optional<CGRect> lastUsedWindow();

/// Has `changed` called whenever that may be another one. There is one watcher at most; an empty
/// function for none.
void watchLastUsedWindow(std::function<void()> changed);
