// SPDX-License-Identifier: MIT
#pragma once

#include "agent/EventLog.h"
#include "platform/CoreServices/AppleEvents.h"

/// The agent's side of docs/agent-contract.md. It receives the pane's events, logs them, and keeps
/// one state: on or off. It reports the state when it changes by itself.
class Agent {
public:
    /// `log` must outlive the agent.
    explicit Agent(const EventLog& log);

    /// From now on receives events. One agent per process.
    void installHandlers();

    /// Reads the stored state; the default is on. Call it once this process takes part. What a pane
    /// stores before that is read; what it changes later is sent.
    void readStoredState();

    /// Changes, stores and reports the state, like a hot key of a real agent.
    void flip();

private:
    using Handler = OSErr (Agent::*)(const AppleEvent& event);

    template <Handler handler>
    void install(AEEventClass eventClass, AEEventID eventID);

    OSErr paneOpened(const AppleEvent& event);
    OSErr paneClosed(const AppleEvent& event);
    OSErr setAllPrefs(const AppleEvent& event);
    OSErr holdKeys(const AppleEvent& event);
    OSErr quit(const AppleEvent& event);
    void report();

    const EventLog& log_;
    bool on_ = true;
    bool paneIsClosed_ = false;             ///< as it said
    ProcessSerialNumber pane_ = kNoProcess; ///< from its opening event
};

/// The first other process that takes part with type 'APPL' and that signature, or kNoProcess.
ProcessSerialNumber findOtherApplication(OSType signature);
