// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"
#include "platform/CoreServices/Processes.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

// The Apple Event Manager. An event is a D-Bus call: Event(u class, u id, a(uuay) parameters) → (i
// result), on interface org.korvex.AppleEvents1 of object /org/korvex/AppleEvents of the addressed
// process. A parameter is keyword, type and bytes. Integers are little-endian. An event has at most
// 64 parameters and 1 MiB. docs/agent-contract.md has the whole protocol.
//
// Needs a QCoreApplication. Its event loop delivers incoming events to their handlers.

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

/// Bytes and their type. Copies share nothing; the destructor disposes.
struct AEDesc {
    DescType descriptorType = 0;
    std::vector<UInt8> data;
};

using AEAddressDesc = AEDesc;

/// An event with address and parameters, or a reply. The destructor disposes.
struct AppleEvent {
    AEEventClass eventClass = 0;
    AEEventID eventID = 0;
    ProcessSerialNumber target;
    std::map<AEKeyword, AEDesc> parameters;
};

OSErr AECreateDesc(DescType type, const void* data, std::size_t size, AEDesc* result);

/// paramErr when `target` is no process serial number.
OSErr AECreateAppleEvent(AEEventClass eventClass, AEEventID eventID, const AEAddressDesc* target,
                         SInt16 returnID, SInt32 transactionID, AppleEvent* result);

/// Adds the parameter, or replaces the one with that keyword.
OSErr AEPutParamPtr(AppleEvent* event, AEKeyword keyword, DescType type, const void* data,
                    std::size_t size);

/// Copies at most `maximumSize` bytes of the parameter; `*actualSize` receives its whole size.
/// errAEDescNotFound when it is missing. errAECoercionFail when its type isn't `desiredType`.
/// `actualType` may be null.
OSErr AEGetParamPtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                    DescType* actualType, void* data, std::size_t maximumSize,
                    std::size_t* actualSize);

/// The same for an attribute of the event. There is only keyEventIDAttr.
OSErr AEGetAttributePtr(const AppleEvent* event, AEKeyword keyword, DescType desiredType,
                        DescType* actualType, void* data, std::size_t maximumSize,
                        std::size_t* actualSize);

/// Sends the event.
///
/// kAENoReply: the event is handed to the bus and the call returns. It doesn't notice when the
/// addressee is gone.
///
/// kAEWaitReply: the call waits for the handler, at most `timeOutInTicks` sixtieths of a second, or
/// a minute for kAEDefaultTimeout. It returns the handler's result, errAETimeout, or procNotFound.
///
/// connectionInvalid without a bus. `reply` (may be null) is left empty: only the result is sent
/// back.
OSErr AESend(const AppleEvent* event, AppleEvent* reply, AESendMode mode, SInt32 timeOutInTicks);

/// Sends the event and doesn't wait: `done` is called later with what AESend would return for
/// kAEWaitReply. macOS has kAEQueueReply for this.
void sendThen(const AppleEvent& event, SInt32 timeOutInTicks, std::function<void(OSErr)> done);

/// Waits until the bus has every event that was sent, a second at most. macOS has no such
/// operation.
void flushSentEvents();

/// Handles one event on the main thread. The result goes to a sender that waits.
using AEEventHandler = OSErr (*)(const AppleEvent* event, AppleEvent* reply, void* refCon);

/// Installs the handler for a class and an ID. Either may be typeWildCard. It replaces a handler
/// for the same two. The most specific handler gets the event; a fitting class counts more than a
/// fitting ID. An event without a handler is answered with errAEEventNotHandled.
OSErr AEInstallEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler,
                            void* refCon);
/// errAEHandlerNotFound unless this handler is installed for exactly that class and ID.
OSErr AERemoveEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler);

/// From now on, of events of that kind that wait to be handled and ask for no answer, only each
/// sender's last one is: a flood of reports costs what one does.
void keepLastReportOnly(AEEventClass eventClass, AEEventID eventID);
