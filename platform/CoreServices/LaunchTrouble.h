// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/LaunchServices.h"

#include <optional>
#include <string>

// What has become of the applications that this process started with LSOpenCFURLRef, for whoever
// tells the user. An application is up while a process takes part that is the one started, or that
// is of type 'APPL' and of the signature that its Info.plist says (CFBundleSignature).
//
// Main thread only. Nothing here waits.

enum class LaunchTrouble {
    NotUp,       ///< it couldn't be started, or isn't up ten seconds after it was to start
    KeepsEnding, ///< it isn't up, and has ended by itself more than twice
};

struct TroubledApplication {
    std::string bundle; ///< the path of its bundle
    LaunchTrouble trouble{};
};

/// The application that is in trouble; none when all are well, or may still come up. An end that
/// this process asked for ('quit') is no trouble, nor is one while another process keeps the
/// application up.
std::optional<TroubledApplication> findLaunchTrouble();

/// Whether the application of that bundle was started less than ten seconds ago, or is to start
/// once another has ended, and may still come up.
bool isLaunching(const std::string& bundle);

/// Starts the application of that bundle as LSOpenCFURLRef does, and forgets what went wrong
/// before: it has ten seconds again, and endings count from none. One that hangs while it starts is
/// left as it is, and can't be started a second time.
OSStatus launchAgain(const std::string& bundle);
