// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/AppleEvents.h"
#include "src/prefs.h"

// The link to the agent, a program of its own: finding it, launching it, quitting it, and the Apple
// Events exchanged with it. It lives from daemonSetup to daemonCleanup, one visit of the pane.

/// Installs the handler for the agent's reports. Launches the agent when it isn't running, whatever
/// its on/off state, or else tells it that the pane has opened. `path` is the agent application's;
/// null when there is none: it can't be launched then.
///
/// From now on an agent that comes up later is sent the record, with all changes made so far, as
/// soon as it takes part; first it is told that the pane has opened, if that has launched it.
void daemonSetup(const CFString* path);

/// Tells a running agent that the pane has closed, and lets everything go.
void daemonCleanup();

/// Sends the agent the record and what changed in it. With kChangeForceOnOff and `on` 0 it asks the
/// agent to quit instead; otherwise, with `on` 1, it launches an agent that isn't running or was
/// asked to quit before. While none can be found nothing is sent.
void daemonSendChanges(ChangeMask changes, bool doNotWait);

enum class AgentState {
    Running,
    Starting,   ///< started less than ten seconds ago
    NotRunning, ///< and not known to come up
};

/// As far as is known now. Whenever it changes, wranglerShowAgentState is called.
AgentState daemonState();

/// The agent application's bundle, where its resources are; null without a path or bundle. Borrowed
/// until daemonCleanup.
CFBundle* daemonMainBundle();
/// For commands, which don't set the link up: where the agent's resources are; null for nowhere.
void daemonUseBundle(CFRef<CFBundle> bundle);
