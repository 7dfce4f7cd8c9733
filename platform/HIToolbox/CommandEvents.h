// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/CarbonEvents.h"

/// The direct object of kEventCommandProcess. A control with a command sends that event to its
/// window when it is operated. 14 bytes, as on macOS. Menus don't send it here.
#pragma pack(push, 2)

struct HICommand {
    UInt32 attributes;
    UInt32 commandID;

    struct {
        UInt32 menuRef;
        UInt16 menuItemIndex;
    } menu;
};

#pragma pack(pop)
static_assert(sizeof(HICommand) == 14);
