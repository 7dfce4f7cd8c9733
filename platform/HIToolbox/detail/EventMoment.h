// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// When an event happened, on GetCurrentEventTime's clock, from the milliseconds that the display
/// server stamped it with. Servers count from the computer's start, X11's in 32 bits; an event
/// with the time of any other clock counts as happening now.
double momentOf(std::uint64_t milliseconds);
