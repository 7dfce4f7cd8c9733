// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/CarbonEvents.h"

/// The direct object of a kEventCommandProcess, which a control with a command sends to its window
/// when the user has operated it. 14 bytes, as on the platform; no menu sends any here.
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
