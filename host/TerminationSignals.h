// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// From now on SIGTERM, SIGINT and SIGHUP don't kill the program. Its event loop calls `onSignal`
/// instead. Processes that it starts get the usual effect. Call it once.
void handleTerminationSignals(std::function<void()> onSignal);
