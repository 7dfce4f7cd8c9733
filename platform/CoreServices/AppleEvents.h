// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/CoreServices/Processes.h"

#include <map>
#include <memory>
#include <vector>

// The Apple Event Manager. An event is a call of Event(u class, u id, a(uuay) parameters) → (i
// result) on interface org.korvex.AppleEvents1 of object /org/korvex/AppleEvents of the process
// addressed; a parameter is (keyword, type, bytes). Integers travel little-endian. At most 64
// parameters of 1 MiB together; docs/agent-contract.md has the whole protocol.
//
// Needs a QCoreApplication, whose event loop delivers the events that come in to their handlers.

using AEEventClass = FourCharCode;
using AEEventID = FourCharCode;
using AEKeyword = FourCharCode;
using DescType = FourCharCode;
using AESendMode = SInt32;

constexpr DescType typeWildCard = fourCharCode("****");
constexpr DescType typeType = fourCharCode("type");
constexpr DescType typeBoolean = fourCharCode("bool");
constexpr DescType typeUInt32 = fourCharCode("magn");
constexpr DescType typeProcessSerialNumber = fourCharCode("psn ");
constexpr AEKeyword keyDirectObject = fourCharCode("----");
constexpr AEKeyword keyEventIDAttr = fourCharCode("evid");
constexpr AEEventClass kCoreEventClass = fourCharCode("aevt");
constexpr AEEventID kAEQuitApplication = fourCharCode("quit");

constexpr SInt16 kAutoGenerateReturnID = -1;
constexpr SInt32 kAnyTransactionID = 0;
constexpr AESendMode kAENoReply = 0x1;
constexpr AESendMode kAEWaitReply = 0x3;
constexpr AESendMode kAEDontRecord = 0x1000;
constexpr SInt32 kAEDefaultTimeout = -1;

constexpr OSErr errAECoercionFail = -1700;
constexpr OSErr errAEDescNotFound = -1701;
constexpr OSErr errAEEventNotHandled = -1708;
constexpr OSErr errAETimeout = -1712;
constexpr OSErr errAEHandlerNotFound = -1717;
constexpr OSErr connectionInvalid = -609;

/// A typed run of bytes. Copies share nothing; the destructor disposes.
struct AEDesc {
    DescType descriptorType = 0;
    std::vector<UInt8> data;
};

using AEAddressDesc = AEDesc;

/// An event with its address and parameters, or the reply to one. The destructor disposes.
struct AppleEvent {
    AEEventClass eventClass = 0;
    AEEventID eventID = 0;
    ProcessSerialNumber target;
    std::map<AEKeyword, AEDesc> parameters;
};

OSErr AECreateDesc(DescType type, const void* data, std::size_t size, AEDesc* result);

/// paramErr when `target` isn't a process serial number.
OSErr AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEAddressDesc* target,
                         SInt16 returnID, SInt32 transactionID, AppleEvent* result);

/// Adds the parameter, or replaces the one of that keyword.
OSErr AEPutParamPtr(AppleEvent* event, AEKeyword keyword, DescType type, const void* data,
                    std::size_t size);

/// Copies at most `maximumSize` bytes of the parameter; `*actualSize` is its whole size.
/// errAEDescNotFound when it is absent, errAECoercionFail when it is of another type than
/// `desiredType`. `actualType` may be null.
OSErr AEGetParamPtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                    DescType* actualType, void* data, std::size_t maximumSize,
                    std::size_t* actualSize);

/// The same for an attribute of the event; keyEventIDAttr is the one there is.
OSErr AEGetAttributePtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                        DescType* actualType, void* data, std::size_t maximumSize,
                        std::size_t* actualSize);

/// Sends the event. With kAENoReply it is handed to the bus, nothing is awaited, and an addressee
/// that has gone goes unnoticed. With kAEWaitReply the call blocks until the handler has answered,
/// for `timeOutInTicks` sixtieths of a second or, for kAEDefaultTimeout, a minute; the handler's
/// result is then the result, errAETimeout when none comes in time, or procNotFound.
/// connectionInvalid without a bus. `reply` (may be null) is left empty: only the result travels
/// back.
OSErr AESend(const AppleEvent* event, AppleEvent* reply, AESendMode mode, SInt32 timeOutInTicks);

/// Handles one event on the main thread; the result goes back to a sender that waits for it.
using AEEventHandler = OSErr (*)(const AppleEvent* event, AppleEvent* reply, void* refCon);

/// Installs the handler for a class and ID, either of which may be typeWildCard; it takes the place
/// of one that is installed for the same two. The more specific handler wins, and the class counts
/// before the ID. An event that no handler takes is answered with errAEEventNotHandled.
OSErr AEInstallEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler,
                            void* refCon);
/// errAEHandlerNotFound when another handler, or none, is installed for just that class and ID.
OSErr AERemoveEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler);
