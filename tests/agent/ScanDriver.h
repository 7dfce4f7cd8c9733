// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Ends the process with a message if a rule is broken.
void require(bool holds, const char* rule);

/// Presses and scans as the bytes say: a record, then what happens, two bytes a step. Ends the
/// process with a message if a rule is broken that holds whatever happens. True if a place was
/// chosen.
bool driveScan(std::string_view bytes);
