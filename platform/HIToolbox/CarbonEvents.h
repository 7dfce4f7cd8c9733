// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/HIToolbox/MacWindows.h"

#include <cstddef>

// The Carbon Event Manager. A window's events go to the handlers installed on its target, newest
// first, until one has handled them.

constexpr OSStatus eventParameterNotFoundErr = -9870;
/// A handler returns this to let others handle the event, and noErr to stop it.
constexpr OSStatus eventNotHandledErr = -9874;

enum : OSType {
    kEventClassMouse = fourCharCode("mous"),
    kEventClassKeyboard = fourCharCode("keyb"),
    kEventClassWindow = fourCharCode("wind"),
    kEventClassCommand = fourCharCode("cmds"),
    kEventClassControl = fourCharCode("cntl"),
};

enum : UInt32 { // kEventClassMouse
    kEventMouseDown = 1,
    kEventMouseUp = 2,
    kEventMouseDragged = 6, ///< moved with a button down
};

enum : UInt32 { // kEventClassKeyboard
    kEventRawKeyDown = 1,
    kEventRawKeyRepeat = 2, ///< the key is still down
};

enum : UInt32 { // kEventClassWindow
    kEventWindowDrawContent = 2,
    kEventWindowShown = 24,
    kEventWindowBoundsChanged = 27, ///< also by MoveWindow and SizeWindow
};

enum : UInt32 { kEventCommandProcess = 1 }; // kEventClassCommand

enum : UInt32 { kEventControlHit = 1 }; // kEventClassControl

using EventParamName = OSType;
using EventParamType = OSType;

enum : EventParamName {
    kEventParamDirectObject = fourCharCode("----"),    ///< what the event is about
    kEventParamMouseLocation = fourCharCode("mloc"),   ///< typeHIPoint, global coordinates
    kEventParamKeyMacCharCodes = fourCharCode("kchr"), ///< typeChar, Mac OS Roman
};

enum : EventParamType {
    typeChar = fourCharCode("TEXT"),
    typeHIPoint = fourCharCode("hipt"), ///< a CGPoint
    typeHICommand = fourCharCode("hcmd"),
    typeControlRef = fourCharCode("ctrl"),
};

/// Characters of keys without a letter.
enum : char {
    kEnterCharCode = 3, ///< of the keypad
    kReturnCharCode = 13,
    kEscapeCharCode = 27,
    kLeftArrowCharCode = 28,
    kRightArrowCharCode = 29,
    kUpArrowCharCode = 30,
    kDownArrowCharCode = 31,
};

struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;

    bool operator==(const EventTypeSpec&) const = default;
};

/// An event being handled. Borrowed until the handler returns.
using EventRef = class EventRecord*;

UInt32 GetEventClass(EventRef event);
UInt32 GetEventKind(EventRef event);

/// Copies a parameter: its whole size, or the first `bufferSize` bytes, to `data`. `actualType`,
/// `actualSize` and `data` may be null. eventParameterNotFoundErr when the event has no parameter
/// of that name and type.
OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType,
                           EventParamType* actualType, std::size_t bufferSize,
                           std::size_t* actualSize, void* data);

/// The remaining handlers.
using EventHandlerCallRef = class CarbonEventHandlers*;
using EventHandlerUPP = OSStatus (*)(EventHandlerCallRef nextHandler, EventRef event,
                                     void* userData);

constexpr EventHandlerUPP NewEventHandlerUPP(EventHandlerUPP function) {
    return function;
}

using EventHandlerRef = struct CarbonEventHandler*;
using EventTargetRef = class CarbonEventTarget*;

EventTargetRef GetWindowEventTarget(WindowRef window);

/// Installs a handler for `count` types of events. It is removed with its target. `handlerRef` may
/// be null. paramErr without a target, a handler or a type.
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, std::size_t count,
                             const EventTypeSpec* types, void* userData,
                             EventHandlerRef* handlerRef);

/// Call it before the target goes.
OSStatus RemoveEventHandler(EventHandlerRef handler);

/// Handles events until the loop is ended, the window goes, or the program is to quit. Meanwhile
/// the program's other windows get no input; everything else goes on. errCouldntSetUserFocus when
/// the window can't get the keyboard that it asked for.
OSStatus RunAppModalLoopForWindow(WindowRef window);

/// Ends the window's loop after the current event.
OSStatus QuitAppModalLoopForWindow(WindowRef window);

/// Gives the window every key press while it is shown. While another program holds the keyboard,
/// for example with an open menu, it tries again for up to five seconds. Then it ends the window's
/// modal loop.
OSStatus SetUserFocusWindow(WindowRef window);

/// Modifier keys as in Carbon's events. On Linux command is the Super key and option is Alt.
enum : UInt32 {
    cmdKey = 0x0100,
    shiftKey = 0x0200,
    alphaLock = 0x0400,
    optionKey = 0x0800,
    controlKey = 0x1000,
};

/// The modifier keys that were held when the current event was made.
UInt32 GetCurrentEventKeyModifiers();

/// The modifier keys held right now. Asks the display server.
UInt32 GetCurrentKeyModifiers();

/// The system beep. `duration` has no effect.
void SysBeep(SInt16 duration);
