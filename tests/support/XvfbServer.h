// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>

/// A display server of the test's own, named by DISPLAY until it is destroyed. It has a keyboard
/// and a mouse, which FakeDevice moves.
class XvfbServer {
public:
    /// Starts it and waits until it answers. The screen is `width` by `height` pixels. On failure
    /// the test fails, and isRunning() is false.
    explicit XvfbServer(int width = 800, int height = 600);
    ~XvfbServer();
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    bool isRunning() const { return pid_ > 0; }

    pid_t pid() const { return pid_; }

    /// Kills it, as a crash does.
    void kill();

private:
    pid_t pid_ = 0;
};
