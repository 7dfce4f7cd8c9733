// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

// What the agent says about itself, such as why it can't hear the switch. It stands in the strip
// until the agent says something else, takes it back or is gone.

/// Shows the direct object of a 'PPsy': a sentence of type 'utf8', at most 500 bytes. An empty one
/// removes what is shown. An error, and no change, when it is missing, of another type, too long,
/// no UTF-8, or has characters that a line of text doesn't show.
OSErr showSaying(const AppleEvent& event);

/// Removes what is shown. Does nothing without it.
void withdrawSaying();
