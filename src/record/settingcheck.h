// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/settings.h"

#include <optional>
#include <string>

// Values from outside the window: from a file or a command line.

/// Why the setting's value in the record is invalid, in words. Empty when it is valid: a number is
/// within its limits, a choice is one of the choices.
std::string settingFault(const Setting& setting, const PrefsRecord& record);

/// Sets a stored value. Returns the reason for a failure, and leaves the record unchanged then.
/// Empty on success.
std::string setFromValue(const Setting& setting, const CFType* value, PrefsRecord& record);

/// The same with a value in words or with its stored text: "12.5", "12.5 sec", "60%", "on", "no", a
/// choice's words or number, "#640000", "(40,40)"; takes back every settingValue.
std::string setFromWords(const Setting& setting, const std::string& words, PrefsRecord& record);
