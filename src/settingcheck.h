// SPDX-License-Identifier: MIT
#pragma once

#include "src/settings.h"

#include <optional>
#include <string>

// Values from outside the window: from a file, or typed at a command line.

/// Why the setting's value in the record can't be used, in words; empty when it can. A number lies
/// within its limits, a choice is one of the choices.
std::string settingFault(const Setting& setting, const PrefsRecord& record);

/// Puts a stored value into the record. Returns why it can't be, and leaves the record then; empty
/// when it could.
std::string setFromValue(const Setting& setting, const CFType* value, PrefsRecord& record);

/// The same with a value in people's words or with its stored text: "12.5", "12.5 sec", "60%",
/// "on", "no", a choice's words or number, "(40,40)".
std::string setFromWords(const Setting& setting, const std::string& words, PrefsRecord& record);
