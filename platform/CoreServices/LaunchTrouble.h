// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/LaunchServices.h"

#include <optional>
#include <string>

// What became of the applications that this process started with LSOpenCFURLRef. An application is
// up while the started process takes part, or another process of type 'APPL' with the signature in
// its Info.plist (CFBundleSignature).
//
// Main thread only. Nothing here waits.

enum class LaunchTrouble {
    NotUp,       ///< it can't be started, or wasn't up within ten seconds
    KeepsEnding, ///< it isn't up, and has ended by itself more than twice
};

struct TroubledApplication {
    std::string bundle; ///< the path of its bundle
    LaunchTrouble trouble{};
};

/// The application that is in trouble. None while all are well or may still come up. An end that
/// this process asked for ('quit') is no trouble. Nor is an end while another process keeps the
/// application up.
std::optional<TroubledApplication> findLaunchTrouble();

/// Whether the application may still come up: it was started less than ten seconds ago, or starts
/// when another process has ended.
bool isLaunching(const std::string& bundle);

/// Starts the application as LSOpenCFURLRef does, and forgets earlier trouble. It has ten seconds
/// again. An application that hangs while it starts isn't started a second time.
OSStatus launchAgain(const std::string& bundle);
