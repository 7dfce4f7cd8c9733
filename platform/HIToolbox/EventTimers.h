#pragma once

#include "platform/CoreFoundation/CFBase.h"

// Timers of the main thread's event loop.

using EventTimerInterval = double; ///< seconds
using EventLoopRef = class CarbonEventLoop*;
using EventLoopTimerRef = class CarbonTimer*;
using EventLoopTimerUPP = void (*)(EventLoopTimerRef timer, void* userData);

constexpr EventLoopTimerUPP NewEventLoopTimerUPP(EventLoopTimerUPP function) {
    return function;
}

EventLoopRef GetMainEventLoop();

/// Calls the function once, after `delay`: `interval` is 0. The timer is to be removed, whether or
/// not it has fired.
OSStatus InstallEventLoopTimer(EventLoopRef loop, EventTimerInterval delay,
                               EventTimerInterval interval, EventLoopTimerUPP function,
                               void* userData, EventLoopTimerRef* timer);

/// May be called from the timer's own function.
OSStatus RemoveEventLoopTimer(EventLoopTimerRef timer);
