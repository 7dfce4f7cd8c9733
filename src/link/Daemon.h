// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/AppleEvents.h"
#include "src/store/prefs.h"

// The link to the agent, which is a separate program: finding, launching and quitting it, and Apple
// Events to and from it. It exists from daemonSetup to daemonCleanup, during one visit.

/// Installs the handler for the agent's reports. If the agent runs, tells it that the pane has
/// opened. Else launches it, whatever its on/off state. `path` is the agent application's path;
/// with null it can't be launched.
///
/// From now on an agent that comes up later gets the record with all changes so far. One launched
/// by this call is first told that the pane has opened.
void daemonSetup(const CFString* path);

/// Tells a running agent that the pane has closed, and ends the link.
void daemonCleanup();

/// Sends the agent the record and the mask of changes. With kChangeForceOnOff and `on` 0 it asks
/// the agent to quit instead. Otherwise, with `on` 1, it launches an agent that doesn't run or was
/// asked to quit. Sends nothing if no agent can be found.
void daemonSendChanges(ChangeMask changes, bool doNotWait);

enum class AgentState {
    Running,
    Starting,   ///< started less than ten seconds ago
    NotRunning, ///< and isn't starting
};

/// As far as is known. wranglerShowAgentState is called whenever it changes.
AgentState daemonState();

/// The agent application's bundle with its resources. Null without a path or bundle. Borrowed until
/// daemonCleanup.
CFBundle* daemonMainBundle();
