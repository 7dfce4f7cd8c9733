// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <compare>
#include <sys/types.h>

// The Process Manager. A process takes part by owning a name on the session bus:
// org.korvex.Process1.t<type>.s<signature>.p<pid>. Type and signature are eight hexadecimal digits
// each, written in upper case, read in either. Its unique bus name :a.b is its process serial
// number {a, b}. Names of any other kind are ignored.
//
// Needs a QCoreApplication. The first operation asks the bus which names there are. It asks two
// questions and waits a second at most for each. Later ones wait for nothing: the bus announces
// changes. Without a bus nobody takes part.

struct ProcessSerialNumber {
    UInt32 highLongOfPSN = 0;
    UInt32 lowLongOfPSN = 0;

    auto operator<=>(const ProcessSerialNumber&) const = default;
};

constexpr ProcessSerialNumber kNoProcess{};

/// What GetProcessInformation tells. The caller sets `processInfoLength` first.
struct ProcessInfoRec {
    UInt32 processInfoLength = 0;
    UInt32 processType = 0;
    OSType processSignature = 0;
};

/// The required value of `processInfoLength`.
constexpr UInt32 kProcessInfoRecLength = 60;

constexpr OSErr procNotFound = -600;

/// Makes this process take part, with that type and signature. It can receive events as soon as
/// others see it. False without a session bus. A program's main function calls it once.
bool registerCurrentProcess(OSType type, OSType signature);

/// procNotFound when this process doesn't take part.
OSErr GetCurrentProcess(ProcessSerialNumber* psn);

/// Steps to the process after `*psn` in the order of serial numbers. Start with kNoProcess.
/// procNotFound at the end.
OSErr GetNextProcess(ProcessSerialNumber* psn);

OSErr GetProcessInformation(const ProcessSerialNumber* psn, ProcessInfoRec* info);

/// The first other process of type 'APPL' with that signature, or kNoProcess. macOS has no such
/// operation.
ProcessSerialNumber findApplication(OSType signature);

/// procNotFound when the process is gone.
OSStatus GetProcessPID(const ProcessSerialNumber* psn, pid_t* pid);
