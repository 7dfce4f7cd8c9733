// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/HIToolbox/MacWindows.h"

#include <cstddef>

// The Carbon Event Manager: what happens to a window reaches the handlers that are installed for it
// on the window's target, newest first, until one of them has handled it.

constexpr OSStatus eventParameterNotFoundErr = -9870;
/// What a handler returns for an event that others may still act on; noErr ends its way.
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

/// An event on its way; borrowed, until the handler returns.
using EventRef = class EventRecord*;

UInt32 GetEventClass(EventRef event);
UInt32 GetEventKind(EventRef event);

/// Copies a parameter: its whole size, or `bufferSize` bytes when that is less, go to `data`.
/// `actualType`, `actualSize` and `data` may be null. eventParameterNotFoundErr when the event has
/// no parameter of that name and type.
OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType,
                           EventParamType* actualType, std::size_t bufferSize,
                           std::size_t* actualSize, void* data);

/// The handlers that would follow.
using EventHandlerCallRef = class CarbonEventHandlers*;
using EventHandlerUPP = OSStatus (*)(EventHandlerCallRef nextHandler, EventRef event,
                                     void* userData);

constexpr EventHandlerUPP NewEventHandlerUPP(EventHandlerUPP function) {
    return function;
}

using EventHandlerRef = struct CarbonEventHandler*;
using EventTargetRef = class CarbonEventTarget*;

EventTargetRef GetWindowEventTarget(WindowRef window);

/// Installs a handler for `count` types of events. It goes with its target: `handlerRef` may be
/// null. paramErr without a target, a handler or a type.
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, std::size_t count,
                             const EventTypeSpec* types, void* userData,
                             EventHandlerRef* handlerRef);

/// Before its target goes.
OSStatus RemoveEventHandler(EventHandlerRef handler);

/// Handles events until the loop is ended for the window, or the window goes, or the program is to
/// end. The program's other windows get none of the user's meanwhile; all else goes on.
/// errCouldntSetUserFocus when the window can't have the keyboard that it was to get.
OSStatus RunAppModalLoopForWindow(WindowRef window);

/// Ends the window's loop once the event being handled is done.
OSStatus QuitAppModalLoopForWindow(WindowRef window);

/// Gives the window every key press while it is shown. If another program holds the keyboard, such
/// as one with an open menu, tries again for at most five seconds, then ends the window's modal
/// loop.
OSStatus SetUserFocusWindow(WindowRef window);

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
