// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"

/// The agent application's bundle with its resources. Null without one. Borrowed until the next
/// call of one of those below.
CFBundle* daemonMainBundle();

/// Where the agent is, for a visit: the path of its application. Null at the visit's end.
void daemonSetBundlePath(const CFString* path);

/// For commands, which begin no visit: `make` makes the bundle when it is first asked for.
void daemonMakeBundleBy(CFRef<CFBundle> (*make)());
