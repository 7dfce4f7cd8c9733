// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

/// A second process that waits for this one's end and then lets go of the keys and buttons that it
/// still holds. It has a connection to the server before anything is held. It also ends this one if
/// it hangs while it must not.
class Guard {
public:
    /// Starts it. Call it before threads are started and before Qt connects to anything. Null when
    /// no process can be started.
    static std::unique_ptr<Guard> start();
    /// It ends without a trace when nothing is held.
    ~Guard();

    /// Told before it happens.
    void willHold(bool isKey, std::uint8_t code);
    void hasLetGo(bool isKey, std::uint8_t code);

    /// From now on heartbeat() must be called at least every kLongestSilence seconds, until rest().
    void watch();
    void heartbeat();
    void rest();

    static constexpr double kLongestSilence = 3;
};
