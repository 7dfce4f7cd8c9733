// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/MacWindows.h"

// The notice that assistive access is switched off in the system, without which the agent can't
// work. It offers to open the system's settings and to stay away for good, and closes by itself
// after 30 seconds. Main thread only.

/// Shows the notice when assistive access is off, at most once a day of UTC: as a sheet on
/// `parent`, or in a window of its own when that is null. `bundle` holds the interface file
/// "axreq"; null stands for the main bundle. Does nothing while a notice is shown. It goes when
/// access is switched on meanwhile; if it turns out that access was on all the time, which a system
/// that is still starting tells late, the day doesn't count.
void axReqCheckAXEnabled(CFBundle* bundle, WindowRef parent);

/// Takes the notice away, if one is shown. Before its parent goes.
void axReqCancel();
