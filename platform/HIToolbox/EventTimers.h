// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

// Timers of the main thread's event loop.

using EventTime = double;          ///< seconds since the computer started
using EventTimerInterval = double; ///< seconds
using EventLoopRef = class CarbonEventLoop*;
using EventLoopTimerRef = class CarbonTimer*;
using EventLoopTimerUPP = void (*)(EventLoopTimerRef timer, void* userData);

constexpr EventLoopTimerUPP NewEventLoopTimerUPP(EventLoopTimerUPP function) {
    return function;
}

EventLoopRef GetMainEventLoop();

/// A steady clock. Changes of the date don't affect it.
EventTime GetCurrentEventTime();

/// Calls the function after `delay` and then, unless `interval` is 0, again and again. The timer
/// must be removed, even if it has fired.
OSStatus InstallEventLoopTimer(EventLoopRef loop, EventTimerInterval delay,
                               EventTimerInterval interval, EventLoopTimerUPP function,
                               void* userData, EventLoopTimerRef* timer);

/// Calls the function next after `delay` from now on, also after it has fired once.
OSStatus SetEventLoopTimerNextFireTime(EventLoopTimerRef timer, EventTimerInterval delay);

/// May be called from the timer's own function.
OSStatus RemoveEventLoopTimer(EventLoopTimerRef timer);
