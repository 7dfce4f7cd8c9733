// SPDX-License-Identifier: MIT
#pragma once

/// The program's name on the session bus and of its desktop entry, and its object path.
inline constexpr char kApplicationName[] = "org.korvex.Preferences";
inline constexpr char kApplicationPath[] = "/org/korvex/Preferences";
