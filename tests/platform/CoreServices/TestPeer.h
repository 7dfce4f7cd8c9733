// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/ProcessTest.h"
#include "tests/support/SignalProcess.h"

#include <QProcess>
#include <QTest>

// Events of the peer's class.
constexpr AEEventClass kTestClass = fourCharCode("Test");
constexpr AEEventID kAnswerCode = fourCharCode("code"); ///< answers its direct object, two bytes
constexpr AEEventID kReport = fourCharCode("rprt");     ///< takes a millisecond; no answer needed
constexpr AEEventID kLastReport = fourCharCode("last"); ///< answers the last report's code
constexpr AEEventID kOther = fourCharCode("none");      ///< isn't handled
constexpr DescType typeCode = fourCharCode("shor");
constexpr OSType kApplication = fourCharCode("APPL");

/// Another process that takes part. It is up when the constructor returns.
class TestPeer {
public:
    explicit TestPeer(OSType type = kApplication) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(TEST_PEER), {QString::number(type)});
        // It prints its serial number when it takes part.
        EXPECT_TRUE(process_.waitForReadyRead(20'000)) << "the peer didn't start";
        const QList<QByteArray> numbers = process_.readLine().trimmed().split(' ');
        psn_ = {numbers.value(0).toUInt(), numbers.value(1).toUInt()};
    }

    ~TestPeer() {
        process_.kill();
        process_.waitForFinished();
    }

    const ProcessSerialNumber& psn() const { return psn_; }

    pid_t pid() const { return static_cast<pid_t>(process_.processId()); }

    void signal(int number) const { signalProcess(process_.processId(), number); }

    /// The result of an event that the peer answers with 8.
    OSErr ask(SInt32 timeOutInTicks = kAEDefaultTimeout) const {
        return sendAndWait(
            makeEvent(psn_, kTestClass, kAnswerCode, {{keyDirectObject, {typeCode, {8, 0}}}}),
            timeOutInTicks);
    }

private:
    QProcess process_;
    ProcessSerialNumber psn_;
};

/// Polls without running the event loop.
template <class Condition>
bool waitUntil(Condition condition) {
    for (int i = 0; i < 2000 && !condition(); ++i)
        QTest::qSleep(10);
    return condition();
}
