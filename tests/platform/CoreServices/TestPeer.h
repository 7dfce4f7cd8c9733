#pragma once

#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/Processes.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

#include <csignal>

// The events of the peer's class.
constexpr AEEventClass kTestClass = fourCharCode("Test");
constexpr AEEventID kAnswerCode = fourCharCode("code"); ///< answers its direct object, two bytes
constexpr AEEventID kSendBack = fourCharCode("echo"); ///< sends its parameters on to keyTestProcess
constexpr AEEventID kSentBack = fourCharCode("back");
constexpr AEKeyword keyTestProcess = fourCharCode("from");
constexpr DescType typeCode = fourCharCode("shor");

inline AppleEvent makeEvent(const ProcessSerialNumber& target, AEEventClass eventClass,
                            AEEventID eventID) {
    AEAddressDesc address;
    AppleEvent event;
    EXPECT_EQ(AECreateDesc(typeProcessSerialNumber, &target, sizeof target, &address), noErr);
    EXPECT_EQ(AECreateAppleEvent(eventClass, eventID, &address, kAutoGenerateReturnID,
                                 kAnyTransactionID, &event),
              noErr);
    return event;
}

/// Another process that takes part; it is there when the constructor returns.
class TestPeer {
public:
    explicit TestPeer(OSType type = fourCharCode("APPL"), OSType signature = fourCharCode("peer")) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(TEST_PEER),
                       {QString::number(type), QString::number(signature)});
        // It prints its serial number when it takes part.
        EXPECT_TRUE(process_.waitForReadyRead(20'000)) << "the peer didn't start";
        const QList<QByteArray> numbers = process_.readLine().trimmed().split(' ');
        psn_ = {numbers.value(0).toUInt(), numbers.value(1).toUInt()};
    }

    ~TestPeer() { kill(); }

    const ProcessSerialNumber& psn() const { return psn_; }

    pid_t pid() const { return static_cast<pid_t>(process_.processId()); }

    void signal(int number) const { ::kill(pid(), number); }

    /// Returns when it is gone.
    void kill() {
        process_.kill();
        process_.waitForFinished();
    }

    /// The result of an event that makes the peer answer `code`.
    OSErr ask(SInt16 code, SInt32 timeOutInTicks = kAEDefaultTimeout) const {
        AppleEvent event = makeEvent(psn_, kTestClass, kAnswerCode);
        AEPutParamPtr(&event, keyDirectObject, typeCode, &code, sizeof code);
        return AESend(&event, nullptr, kAEWaitReply, timeOutInTicks);
    }

private:
    QProcess process_;
    ProcessSerialNumber psn_;
};

/// A test in a Qt application that doesn't take part yet.
class ProcessTest : public testing::Test {
protected:
    static bool takePart() {
        return registerCurrentProcess(fourCharCode("APPL"), fourCharCode("test"));
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
};

/// Polls without running the event loop.
template <class Condition>
bool waitUntil(Condition condition) {
    for (int i = 0; i < 2000 && !condition(); ++i)
        QTest::qSleep(10);
    return condition();
}
