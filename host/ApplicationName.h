// SPDX-License-Identifier: MIT
#pragma once

/// The program's name on the session bus, which its desktop entry has as well, and its object
/// there.
inline constexpr char kApplicationName[] = "org.korvex.Preferences";
inline constexpr char kApplicationPath[] = "/org/korvex/Preferences";
