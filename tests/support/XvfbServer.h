// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

#include <gtest/gtest.h>
#include <sys/types.h>

/// A display server of the test's own, named by DISPLAY until it is destroyed. It has a keyboard
/// and a mouse, which FakeDevice moves.
class XvfbServer {
public:
    /// Starts it and waits until it answers, else the test fails. The screen's size is in pixels.
    explicit XvfbServer(int width = 800, int height = 600) {
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start("Xvfb", {"-displayfd", "1", "-screen", "0",
                                QString("%1x%2x24").arg(width).arg(height), "-nolisten", "tcp",
                                "-noreset"});
        EXPECT_TRUE(process_.waitForReadyRead(20'000)) << "Xvfb doesn't start";
        qputenv("DISPLAY", ':' + process_.readLine().trimmed());
    }

    ~XvfbServer() {
        kill();
        qunsetenv("DISPLAY");
    }

    pid_t pid() const { return static_cast<pid_t>(process_.processId()); }

    /// Its programs lose it, as in a crash. Asked to end, it removes its socket.
    void kill() {
        process_.terminate();
        process_.waitForFinished();
    }

private:
    QProcess process_;
};
