// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SignalProcess.h"

#include <QProcess>

/// A stand-in for the desktop's accessibility service: a process on the test's bus. It ends with
/// this object.
class AccessibilityService {
public:
    AccessibilityService() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(KORVEX_ACCESSIBILITY_SERVICE), QStringList());
        EXPECT_TRUE(process_.waitForReadyRead(10'000)) << "the service didn't start";
    }

    ~AccessibilityService() { process_.kill(), process_.waitForFinished(); }

    void set(bool isOn) {
        process_.write(isOn ? "on\n" : "off\n");
        EXPECT_TRUE(process_.waitForBytesWritten());
    }

    /// From now on it doesn't answer.
    void hang() { signalProcess(process_.processId(), SIGSTOP); }

    void wakeUp() { signalProcess(process_.processId(), SIGCONT); }

private:
    QProcess process_;
};
