// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

/// What is started when a process ended without ~Guard, up to kMostRestarts times in a row, unless
/// the session has ended, too. Its argument is the number of restarts; after kLongLife they are
/// counted anew.
struct GuardedProgram {
    const char* path = nullptr; ///< none: nothing is started
    int restarts = 0;           ///< so far
};

/// A second process that waits for this one's end and then lets go of the keys and buttons that it
/// still holds. It has a connection to the server before anything is held. It also ends this one if
/// it hangs while it must not, and starts it anew if it crashed or hung: nobody else may be there
/// who could. It is nobody's child, in a session of its own, and keeps no file of this process
/// open.
class Guard {
public:
    /// Starts it. Call it before threads are started and before Qt connects to anything. Null when
    /// no process can be started, or it doesn't reach the display server within kLongestStart.
    static std::unique_ptr<Guard> start(const GuardedProgram& program = {});
    /// The other process ends, and starts nothing. What is still held it lets go.
    ~Guard();
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    /// Told before it happens. `code` is a key code of the server, or the number of a button.
    void willHold(bool isKey, std::uint8_t code);
    void hasLetGo(bool isKey, std::uint8_t code);

    /// From now on heartbeat() must be called at least every kLongestSilence seconds, until rest().
    /// Else this process is killed.
    void watch();
    /// May be called for every frame: only few are passed on.
    void heartbeat();
    void rest();

    static constexpr double kLongestSilence = 3; ///< seconds, as is the next
    static constexpr double kLongestStart = 10;
    static constexpr double kLongLife = 60;
    static constexpr int kMostRestarts = 3;

private:
    explicit Guard(int socket) : socket_(socket) {}

    void tell(std::uint8_t what, std::uint8_t code = 0) const;

    int socket_;
    double lastHeartbeat_ = 0; ///< seconds on the monotonic clock
};
