// SPDX-License-Identifier: MIT
#include "agent/session/Guard.h"

#include "platform/Support/EventMoment.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

enum What : std::uint8_t {
    HoldKey,
    HoldButton,
    LetGoKey,
    LetGoButton,
    Watch,
    Heartbeat,
    Rest,
    Farewell
};

struct Message {
    std::uint8_t what;
    std::uint8_t code;
};

constexpr char kReady = 'r';
constexpr double kHeartbeatPause = 0.5; ///< seconds

/// What a killed process sent last may reach the server after its end was noticed: it is let go
/// again after each of these waits, in milliseconds.
constexpr int kWaits[] = {0, 5, 20};

constexpr int kIgnored[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};
constexpr int kKept = 3; ///< standard input, output and error

/// The other process.
class Watcher {
public:
    Watcher(int socket, pid_t watched, std::unique_ptr<Releaser> releaser,
            const GuardedProgram& program)
        : socket_(socket), watched_(watched), program_(program), releaser_(std::move(releaser)),
          began_(monotonicNow()) {}

    void run() {
        if (!releaser_ || write(socket_, &kReady, 1) != 1)
            return;
        while (hear())
            ;
        letGo();
        if (!wasMeant_ && program_.path && releaser_->answers())
            startAgain();
    }

private:
    /// False when the watched process has ended.
    bool hear() {
        pollfd file = {socket_, POLLIN, 0};
        const int silence = isWatching_ ? static_cast<int>(Guard::kLongestSilence * 1000) : -1;
        const int ready = poll(&file, 1, silence);
        if (ready == 0) {
            kill(watched_, SIGKILL);
            isWatching_ = false;
            return true;
        }
        Message message{};
        const auto size = ready < 0 ? -1 : recv(socket_, &message, sizeof message, 0);
        if (size < 0)
            return errno == EINTR;
        if (size == 0)
            return false;
        take(message);
        return true;
    }

    void take(const Message& message) {
        switch (message.what) {
        case HoldKey:
        case HoldButton:
            held_.insert({message.what == HoldKey, message.code});
            break;
        case LetGoKey:
        case LetGoButton:
            held_.erase({message.what == LetGoKey, message.code});
            break;
        case Watch:
            isWatching_ = true;
            break;
        case Rest:
            isWatching_ = false;
            break;
        case Farewell:
            wasMeant_ = true;
            break;
        default:
            break; // a heartbeat ends the silence
        }
    }

    void letGo() {
        for (const int wait : kWaits) {
            if (held_.empty() || !releaser_->answers())
                return;
            poll(nullptr, 0, wait);
            releaser_->letGo(held_);
        }
    }

    /// In this process's place.
    void startAgain() {
        const bool livedLong = monotonicNow() - began_ >= Guard::kLongLife;
        const int restarts = livedLong ? 1 : program_.restarts + 1;
        if (restarts > Guard::kMostRestarts)
            return;
        releaser_.reset();
        for (const int signal : kIgnored)
            std::signal(signal, SIG_DFL);
        close_range(kKept, ~0U, 0);
        execl(program_.path, program_.path, std::to_string(restarts).c_str(), nullptr);
    }

    int socket_;
    pid_t watched_;
    const GuardedProgram program_;
    std::unique_ptr<Releaser> releaser_; ///< null: it is of no use
    const double began_;                 ///< seconds on the monotonic clock
    std::set<Held> held_;
    bool isWatching_ = false;
    bool wasMeant_ = false; ///< the end
};

/// Keeps nothing of the parent's but the socket, whose number is returned.
int leaveAllBehind(int socket) {
    setsid();
    for (const int signal : kIgnored)
        std::signal(signal, SIG_IGN);
    prctl(PR_SET_NAME, "korvex-guard");
    const int nothing = open("/dev/null", O_RDWR);
    for (int file = 0; file < kKept; ++file)
        dup2(nothing, file);
    dup2(socket, kKept);
    close_range(kKept + 1, ~0U, 0);
    return chdir("/") == 0 ? kKept : -1;
}

/// The process between ends at once: what it started is no child of the watched one.
[[noreturn]] void startWatcher(int socket, pid_t watched, std::unique_ptr<Releaser> (*connect)(),
                               const GuardedProgram& program) {
    if (fork() == 0) {
        const int kept = leaveAllBehind(socket);
        Watcher(kept, watched, connect(), program).run();
    }
    _exit(0);
}

} // namespace

std::unique_ptr<Guard> Guard::start(std::unique_ptr<Releaser> (*connect)(),
                                    const GuardedProgram& program) {
    int sockets[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets) != 0)
        return nullptr;
    const pid_t watched = getpid();
    const pid_t between = fork();
    if (between == 0)
        startWatcher(sockets[1], watched, connect, program);
    close(sockets[1]);
    std::unique_ptr<Guard> guard(new Guard(sockets[0]));
    if (between < 0)
        return nullptr;
    while (waitpid(between, nullptr, 0) < 0 && errno == EINTR)
        ;
    pollfd file = {sockets[0], POLLIN, 0};
    char ready = 0;
    const bool isReady = poll(&file, 1, static_cast<int>(kLongestStart * 1000)) == 1 &&
                         recv(sockets[0], &ready, 1, 0) == 1;
    return isReady ? std::move(guard) : nullptr;
}

Guard::~Guard() {
    tell(Farewell);
    close(socket_);
}

/// Never waits: a guard that is stopped must not stop this process.
void Guard::tell(std::uint8_t what, std::uint8_t code) const {
    const Message message = {what, code};
    send(socket_, &message, sizeof message, MSG_NOSIGNAL | MSG_DONTWAIT);
}

void Guard::willHold(Held what) {
    tell(what.isKey ? HoldKey : HoldButton, what.code);
}

void Guard::hasLetGo(Held what) {
    tell(what.isKey ? LetGoKey : LetGoButton, what.code);
}

void Guard::watch() {
    lastHeartbeat_ = monotonicNow();
    tell(Watch);
}

void Guard::heartbeat() {
    const double now = monotonicNow();
    if (now - lastHeartbeat_ < kHeartbeatPause)
        return;
    lastHeartbeat_ = now;
    tell(Heartbeat);
}

void Guard::rest() {
    tell(Rest);
}
