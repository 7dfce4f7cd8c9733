// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

/// The keyboard and the mouse of an XvfbServer, in the hands of a user: events come from the
/// physical devices, not from XTEST's. Each has a connection of its own to $DISPLAY, and each call
/// returns when the server has done it.
class FakeDevice {
public:
    enum class Kind { Keyboard, Mouse };

    /// The test fails when the server has no such device.
    explicit FakeDevice(Kind kind);
    ~FakeDevice();

    /// `code` is the server's: the kernel's plus 8.
    void key(int code, bool isDown);
    void button(int number, bool isDown);
    void move(int right, int down);

    /// As a device that is unplugged and plugged in again.
    void setEnabled(bool isEnabled);

    static constexpr int kKernelOffset = 8;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};
