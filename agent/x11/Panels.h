// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/x11/XServer.h"

#include <vector>

/// Sets each screen's `panel`: how far docks reach into it from its top edge, by the struts that
/// they reserve. On a single screen without such a dock, where the window manager lets windows
/// begin. Two round trips to the server.
void measurePanels(XServer& server, std::vector<Screen>& screens);
