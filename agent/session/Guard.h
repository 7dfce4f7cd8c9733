// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <set>

/// A key or button that is held down: a key's code, or a button's number, where it is pressed.
struct Held {
    bool isKey;
    std::uint8_t code;

    auto operator<=>(const Held&) const = default;
};

/// The guard's own way to the session's display.
class Releaser {
public:
    virtual ~Releaser() = default;

    /// Lets go of these and waits until it is done. One that isn't down stays as it is.
    virtual void letGo(const std::set<Held>& held) = 0;
    /// Whether the display is there yet.
    virtual bool answers() = 0;
};

/// What is started when a process ended without ~Guard, up to kMostRestarts times in a row, unless
/// the session has ended, too. Its argument is the number of restarts; after kLongLife they are
/// counted anew.
struct GuardedProgram {
    const char* path = nullptr; ///< none: nothing is started
    int restarts = 0;           ///< so far
};

/// A second process that waits for this one's end and then lets go of the keys and buttons that it
/// still holds. It has a connection to the display before anything is held. It also ends this one
/// if it hangs while it must not, and starts it anew if it crashed or hung: nobody else may be
/// there who could. It is nobody's child, in a session of its own, and keeps no file of this
/// process open.
class Guard {
public:
    /// Starts it. Call it before threads are started and before Qt connects to anything. Null when
    /// no process can be started, or it doesn't reach the display within kLongestStart.
    /// `connect` is called there; it gives null when the display can't be reached.
    static std::unique_ptr<Guard> start(std::unique_ptr<Releaser> (*connect)(),
                                        const GuardedProgram& program = {});
    /// The other process ends, and starts nothing. What is still held it lets go.
    ~Guard();
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    /// Told before it happens.
    void willHold(Held what);
    void hasLetGo(Held what);

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
