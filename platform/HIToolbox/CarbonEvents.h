#pragma once

#include "platform/CoreFoundation/CFBase.h"

/// Modifier keys as Carbon's events have them. On Linux command is the Super key and option is Alt.
enum : UInt32 {
    cmdKey = 0x0100,
    shiftKey = 0x0200,
    alphaLock = 0x0400,
    optionKey = 0x0800,
    controlKey = 0x1000,
};

/// The modifier keys that were held when the event being handled was made.
UInt32 GetCurrentEventKeyModifiers();

/// The modifier keys that are held at this moment, of which the display is asked.
UInt32 GetCurrentKeyModifiers();

/// The system beep; `duration` says nothing here.
void SysBeep(SInt16 duration);
