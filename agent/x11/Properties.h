// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <cstdint>
#include <string>
#include <vector>

/// Asks for a window's property, of any type, without waiting.
xcb_get_property_cookie_t askProperty(XServer& server, xcb_window_t window, const char* name);

/// The property's 32-bit numbers, at most 4096. Empty when the window has none or has gone.
std::vector<std::uint32_t> numbersOf(XServer& server, xcb_get_property_cookie_t asked);

/// The property's bytes. Empty as above.
std::string bytesOf(XServer& server, xcb_get_property_cookie_t asked);
