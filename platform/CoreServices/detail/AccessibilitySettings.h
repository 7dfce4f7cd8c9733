// SPDX-License-Identifier: MIT
#pragma once

/// Opens the accessibility settings of the desktop that XDG_CURRENT_DESKTOP names: GNOME, KDE,
/// Xfce, MATE or Cinnamon. Doesn't wait for them to come up. False on another desktop, or when its
/// settings program isn't installed.
bool openAccessibilitySettings();
