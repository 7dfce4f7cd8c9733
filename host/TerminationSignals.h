// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// From now on SIGTERM, SIGINT and SIGHUP don't kill the program but have `onSignal` called from
/// its event loop. Processes that it starts get the signals' usual effect. Called once.
void handleTerminationSignals(std::function<void()> onSignal);
