// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <compare>
#include <sys/types.h>

// The Process Manager. A process takes part by owning, on the session bus, the name
// org.korvex.Process1.t<type>.s<signature>.p<pid>, type and signature as eight hexadecimal digits
// (written in upper case, read in either). Its unique bus name :a.b is its process serial number
// {a, b}. Names of any other kind are ignored.
//
// Needs a QCoreApplication. Who takes part is kept up to date from the bus's own announcements, so
// none of the operations below waits for anything after the first, which asks the bus for the names
// that are there and gives up after a second for each of its two questions. Without a bus nobody
// takes part.

struct ProcessSerialNumber {
    UInt32 highLongOfPSN = 0;
    UInt32 lowLongOfPSN = 0;

    auto operator<=>(const ProcessSerialNumber&) const = default;
};

constexpr ProcessSerialNumber kNoProcess{};

/// What GetProcessInformation tells; the caller sets `processInfoLength` first.
struct ProcessInfoRec {
    UInt32 processInfoLength = 0;
    UInt32 processType = 0;
    OSType processSignature = 0;
};

/// The length that `processInfoLength` must have.
constexpr UInt32 kProcessInfoRecLength = 60;

constexpr OSErr procNotFound = -600;

/// Lets this process take part, as of that type and signature; it can receive events as soon as
/// others see it. False without a session bus. Called once, early, by a program's main function.
bool registerCurrentProcess(OSType type, OSType signature);

/// procNotFound when this process doesn't take part.
OSErr GetCurrentProcess(ProcessSerialNumber* psn);

/// Steps to the process after `*psn`, starting from kNoProcess, in the order of the numbers;
/// procNotFound at the end.
OSErr GetNextProcess(ProcessSerialNumber* psn);

OSErr GetProcessInformation(const ProcessSerialNumber* psn, ProcessInfoRec* info);

/// procNotFound when there is no such process any more.
OSStatus GetProcessPID(const ProcessSerialNumber* psn, pid_t* pid);
