// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// From now on SIGTERM, SIGINT and SIGHUP don't kill the program. Its event loop calls `onSignal`
/// instead. If the loop doesn't come to it within five seconds, the program ends with status 1.
/// Processes that it starts get the usual effect. Call it once.
void handleTerminationSignals(std::function<void()> onSignal);
