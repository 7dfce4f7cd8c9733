// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A menu of a window's menu bar, as the program tells assistive technologies.
struct BarMenu {
    std::string name; ///< UTF-8, not empty
    Area place;       ///< in pixels
};

/// Asks AT-SPI for the menu bar of a process's active window. The questions are asked in another
/// thread, for kPatience seconds at most; `done` gets the menus in the calling thread, none where
/// no answer came, unless `context` is gone by then.
void askForMenuBar(std::uint32_t process, QObject* context,
                   std::function<void(const std::vector<BarMenu>&)> done);
