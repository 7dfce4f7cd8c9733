// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Tells the user a sentence as a notification of the desktop. The next one takes its place.
/// Without a desktop that shows them it does nothing. Never waits.
void notify(const std::string& text);
