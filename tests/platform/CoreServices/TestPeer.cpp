// A process that takes part as of the type given, and handles the tests' events.

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

OSErr sendBack(const AppleEvent* event, AppleEvent*, void*) {
    AppleEvent answer = *event;
    answer.eventID = kSentBack;
    AEGetParamPtr(event, keyTestProcess, typeProcessSerialNumber, nullptr, &answer.target,
                  sizeof answer.target, nullptr);
    return AESend(&answer, nullptr, kAENoReply, kAEDefaultTimeout);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    AEInstallEventHandler(kTestClass, kAnswerCode, answerCode, nullptr);
    AEInstallEventHandler(kTestClass, kSendBack, sendBack, nullptr);
    ProcessSerialNumber self;
    if (!registerCurrentProcess(static_cast<OSType>(std::stoul(argv[1])), fourCharCode("peer")) ||
        GetCurrentProcess(&self) != noErr)
        return 1;
    std::printf("%u %u\n", self.highLongOfPSN, self.lowLongOfPSN);
    std::fflush(stdout);
    return QCoreApplication::exec();
}
