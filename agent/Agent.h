// SPDX-License-Identifier: MIT
#pragma once

#include "agent/EventLog.h"
#include "platform/CoreServices/AppleEvents.h"

/// The agent's side of docs/agent-contract.md: takes the pane's events, logs them, and keeps one
/// state of its own, on or off, which it reports when it changes by itself.
class Agent {
public:
    /// `log` must outlive the agent.
    explicit Agent(const EventLog& log);

    /// Takes events from now on. One agent a process.
    void installHandlers();

    /// Takes the stored state over; on by default. To be called once this process takes part: what
    /// a pane stores before that is read, and what it changes after that is sent.
    void readStoredState();

    /// Changes the state by itself, as a hot key of a real agent does: stores and reports it.
    void flip();

private:
    using Handler = OSErr (Agent::*)(const AppleEvent& event);

    template <Handler handler>
    void install(AEEventClass eventClass, AEEventID eventID);

    OSErr paneOpened(const AppleEvent& event);
    OSErr paneClosed(const AppleEvent& event);
    OSErr setAllPrefs(const AppleEvent& event);
    OSErr quit(const AppleEvent& event);
    void report();

    const EventLog& log_;
    bool on_ = true;
    bool paneIsClosed_ = false;             ///< it said so
    ProcessSerialNumber pane_ = kNoProcess; ///< as it told when it opened
};

/// The process that takes part as of type 'APPL' and that signature, other than this one; the first
/// of several, or kNoProcess.
ProcessSerialNumber findOtherApplication(OSType signature);
