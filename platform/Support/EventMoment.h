// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Seconds since the computer started. A steady clock: changes of the date don't affect it.
double monotonicNow();

/// When an event happened, on that clock. The argument is the display server's
/// time stamp in milliseconds. Servers count from the computer's start, X11's in 32 bits. An event
/// with a time of any other clock counts as happening now.
double momentOf(std::uint64_t milliseconds);
