// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/x11/XServer.h"

#include <vector>

/// Whether the inner area lies inside of the other, or is the same.
bool covers(const Area& outer, const Area& inner);

/// The server's monitors without their panels, the main display first; with Qt's scales where a
/// QGuiApplication shows windows on the server, else a pixel a point. Never empty. One that lies
/// inside of another, as a mirrored one, is left out.
std::vector<Screen> listScreens(XServer& server);
