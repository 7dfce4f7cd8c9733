// SPDX-License-Identifier: MIT
// A process that takes part with the given type, and handles the tests' events.

#include "tests/platform/CoreServices/TestPeer.h"

#include <cstdio>
#include <string>

namespace {

OSErr answerCode(const AppleEvent* event, AppleEvent*, void*) {
    SInt16 code = 0;
    std::size_t size = 0;
    const OSErr error =
        AEGetParamPtr(event, keyDirectObject, typeCode, nullptr, &code, sizeof code, &size);
    return error != noErr ? error : size == sizeof code ? code : paramErr;
}

OSErr lastReport = noErr;

OSErr takeReport(const AppleEvent* event, AppleEvent* reply, void*) {
    QTest::qSleep(1);
    lastReport = answerCode(event, reply, nullptr);
    return noErr;
}

OSErr answerLastReport(const AppleEvent*, AppleEvent*, void*) {
    return lastReport;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    AEInstallEventHandler(kTestClass, kAnswerCode, answerCode, nullptr);
    AEInstallEventHandler(kTestClass, kReport, takeReport, nullptr);
    keepLastReportOnly(kTestClass, kReport);
    AEInstallEventHandler(kTestClass, kLastReport, answerLastReport, nullptr);
    ProcessSerialNumber self;
    if (!registerCurrentProcess(static_cast<OSType>(std::stoul(argv[1])), fourCharCode("peer")) ||
        GetCurrentProcess(&self) != noErr)
        return 1;
    std::printf("%u %u\n", self.highLongOfPSN, self.lowLongOfPSN);
    std::fflush(stdout);
    return QCoreApplication::exec();
}
