// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/Processes.h"

#include <QString>

#include <optional>

/// What a bus name tells of the process that owns it.
struct ProcessName {
    OSType type = 0;
    OSType signature = 0;
    pid_t pid = 0;
};

/// org.korvex.Process1.t<type>.s<signature>.p<pid>, with upper-case digits.
QString formatProcessName(const ProcessName& process);

/// Takes digits of either case. None for any other name: other numbers of digits, a
/// process ID that isn't a positive decimal number, missing or further fields.
std::optional<ProcessName> parseProcessName(const QString& busName);

/// The serial number {a, b} of the unique bus name :a.b; none for any other name.
std::optional<ProcessSerialNumber> parseUniqueName(const QString& uniqueName);

/// The unique bus name of a process serial number.
QString formatUniqueName(const ProcessSerialNumber& psn);
