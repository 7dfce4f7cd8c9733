// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/AppleEvents.h"
#include "src/store/prefs.h"

// The link to the agent, which is a separate program: finding, launching and quitting it, and Apple
// Events to and from it. It exists from daemonSetup to daemonCleanup, during one visit.

/// Whom the link tells of the agent. Not owned.
struct AgentReports {
    void (*switched)(bool on); ///< the running agent was switched on or off
    void (*stateChanged)();    ///< daemonState() may be another
};

/// Call it before daemonSetup. Without it nobody is told.
void daemonReportTo(const AgentReports& reports);

/// Installs the handler for the agent's reports. If the agent runs, tells it that the pane has
/// opened. Else launches it, whatever its on/off state. `path` is the agent application's path;
/// with null it can't be launched.
///
/// From now on an agent that comes up later gets the record with all changes so far. If none ran at
/// this call, the first one is also told that the pane has opened. Until the end of the link the
/// strip shows what the agent says.
void daemonSetup(const CFString* path);

/// Tells a running agent that the pane has closed, and ends the link.
void daemonCleanup();

/// Sends the agent the record and the mask of changes. With kChangeForceOnOff and `on` 0 it asks
/// the agent to quit instead. Otherwise, with `on` 1, it launches an agent that doesn't run or was
/// asked to quit. Sends nothing if no agent can be found.
void daemonSendChanges(ChangeMask changes, bool doNotWait);

/// A part of the pane needs the keys, or no longer does: the agent lets go of its grabs while at
/// least one part does. Call it in pairs. It may be called at any time: an agent that comes up
/// meanwhile is told too, and none after the end of the link.
void daemonHoldKeys(bool hold);

/// One part's need, ended with this object.
class AgentHold {
public:
    AgentHold() = default;

    ~AgentHold() { set(false); }

    AgentHold(const AgentHold&) = delete;
    AgentHold& operator=(const AgentHold&) = delete;

    void set(bool isWanted);

private:
    bool isHeld_ = false;
};

enum class AgentState {
    Running,
    Starting,     ///< started less than ten seconds ago
    NotRunning,   ///< and isn't starting
    Ended,        ///< as before; it ran during this visit, and nobody here asked it to quit
    NotInstalled, ///< and none runs from elsewhere
};

/// As far as is known. Whenever it changes, `stateChanged` is called.
AgentState daemonState();

/// Starts the agent, unless it runs or is starting, and forgets that it ended or didn't start
/// before.
void daemonLaunch();

/// The agent application's bundle with its resources. Null without a path or bundle. Borrowed until
/// daemonCleanup.
CFBundle* daemonMainBundle();
