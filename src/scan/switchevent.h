// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

// What a desktop's shortcut tells where programs can't hear keys: the command `press` sends it to
// the agent and to the open window (docs/agent-contract.md).

constexpr AEEventClass kSwitchEventClass = fourCharCode("Krvx");
constexpr AEEventID kSwitchEventID = fourCharCode("PPsw");

struct SwitchEvent {
    UInt32 key; ///< index in the record's hot keys
    bool isDown;
    double moment; ///< seconds on monotonicNow's clock
};

AppleEvent switchEventTo(const ProcessSerialNumber& process, const SwitchEvent& event);

/// paramErr, or what AEGetParamPtr says, for one that isn't as it must be. A moment is at most
/// kSwitchEventDelay seconds ago.
OSErr readSwitchEvent(const AppleEvent& event, SwitchEvent& read);

constexpr double kSwitchEventDelay = 1;
