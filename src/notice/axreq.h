// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/MacWindows.h"

// The notice that assistive access is off, which the agent needs. It offers the system's settings
// and can be switched off for good. It closes by itself after 30 seconds. Main thread only.

/// Shows the notice when assistive access is off, at most once a day (UTC): as a sheet on `parent`,
/// or in its own window when that is null. `bundle` has the interface file "axreq"; null stands for
/// the main bundle. Does nothing while a notice is shown. When access is switched on meanwhile, the
/// notice closes. A system that is still starting may answer late that access was on. Then the day
/// doesn't count.
void axReqCheckAXEnabled(CFBundle* bundle, WindowRef parent);

/// Closes the notice, if one is shown. Call it before the parent goes.
void axReqCancel();
