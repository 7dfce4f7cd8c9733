// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

/// Gives an event to the most specific handler that is installed for it.
OSErr dispatchAppleEvent(const AppleEvent& event, AppleEvent* reply);
