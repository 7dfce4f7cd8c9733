// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/Processes.h"
#include "tests/support/ApplicationTest.h"

#include <QCoreApplication>

/// A test that can take part.
class ProcessTest : public ApplicationTest<QCoreApplication> {
protected:
    static bool takePart() {
        return registerCurrentProcess(fourCharCode("APPL"), fourCharCode("test"));
    }
};

/// The process with that signature, or kNoProcess.
inline ProcessSerialNumber findProcess(OSType signature) {
    ProcessSerialNumber psn = kNoProcess;
    while (GetNextProcess(&psn) == noErr) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        if (GetProcessInformation(&psn, &info) == noErr && info.processSignature == signature)
            return psn;
    }
    return kNoProcess;
}

inline AppleEvent makeEvent(const ProcessSerialNumber& target, AEEventClass eventClass,
                            AEEventID eventID, std::map<AEKeyword, AEDesc> parameters = {}) {
    AEAddressDesc address;
    AppleEvent event;
    EXPECT_EQ(AECreateDesc(typeProcessSerialNumber, &target, sizeof target, &address), noErr);
    EXPECT_EQ(AECreateAppleEvent(eventClass, eventID, &address, kAutoGenerateReturnID,
                                 kAnyTransactionID, &event),
              noErr);
    event.parameters = std::move(parameters);
    return event;
}

inline OSErr sendAndWait(const AppleEvent& event, SInt32 timeOutInTicks = kAEDefaultTimeout) {
    return AESend(&event, nullptr, kAEWaitReply, timeOutInTicks);
}
