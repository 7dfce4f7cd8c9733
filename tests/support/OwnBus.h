// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SignalProcess.h"

#include <QProcess>

/// A session bus of the test's own, which it stops and ends.
class OwnBus {
public:
    OwnBus() {
        process_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        EXPECT_TRUE(process_.waitForReadyRead(20'000));
        setenv("DBUS_SESSION_BUS_ADDRESS", process_.readLine().trimmed().constData(), 1);
    }

    ~OwnBus() {
        end();
        process_.waitForFinished();
    }

    void signal(int number) const { signalProcess(process_.processId(), number); }

    void end() { process_.kill(); }

private:
    QProcess process_;
};
