// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/Processes.h"

#include <QString>

#include <optional>

/// What a bus name tells about its process.
struct ProcessName {
    OSType type = 0;
    OSType signature = 0;
    pid_t pid = 0;
};

/// org.korvex.Process1.t<type>.s<signature>.p<pid>, with upper-case digits.
QString formatProcessName(const ProcessName& process);

/// Accepts digits of either case. None for any other name: wrong number of digits, missing or extra
/// fields, a process ID that is no positive decimal number.
std::optional<ProcessName> parseProcessName(const QString& busName);

/// The serial number {a, b} of the unique bus name :a.b. None for any other name.
std::optional<ProcessSerialNumber> parseUniqueName(const QString& uniqueName);

/// The unique bus name of a process serial number.
QString formatUniqueName(const ProcessSerialNumber& psn);
