// SPDX-License-Identifier: MIT
#include "agent/x11/Guard.h"

#include "platform/Support/EventMoment.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <set>
#include <string>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <xcb/xtest.h>

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
    Watcher(int socket, pid_t watched, const GuardedProgram& program)
        : socket_(socket), watched_(watched), program_(program),
          server_(xcb_connect(nullptr, nullptr)), began_(monotonicNow()) {}

    void run() {
        const auto* test = xcb_get_extension_data(server_, &xcb_test_id);
        if (!test || !test->present || write(socket_, &kReady, 1) != 1)
            return;
        while (hear())
            ;
        letGo();
        if (!wasMeant_ && program_.path && serverAnswers())
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
            held_.emplace(message.what == HoldKey, message.code);
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

    /// A key or button that isn't down stays as it is.
    void letGo() {
        for (const int wait : kWaits) {
            if (held_.empty() || xcb_connection_has_error(server_))
                return;
            poll(nullptr, 0, wait);
            for (const auto& [isKey, code] : held_)
                xcb_test_fake_input(server_, isKey ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE, code,
                                    XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
            serverAnswers();
        }
    }

    /// Once it has done what it was asked for. Not when the session has ended.
    bool serverAnswers() const {
        auto* answer = xcb_get_input_focus_reply(server_, xcb_get_input_focus(server_), nullptr);
        std::free(answer);
        return answer != nullptr;
    }

    /// In this process's place.
    void startAgain() {
        const bool livedLong = monotonicNow() - began_ >= Guard::kLongLife;
        const int restarts = livedLong ? 1 : program_.restarts + 1;
        if (restarts > Guard::kMostRestarts)
            return;
        xcb_disconnect(server_);
        for (const int signal : kIgnored)
            std::signal(signal, SIG_DFL);
        close_range(kKept, ~0U, 0);
        execl(program_.path, program_.path, std::to_string(restarts).c_str(), nullptr);
    }

    int socket_;
    pid_t watched_;
    const GuardedProgram program_;
    xcb_connection_t* server_;
    const double began_; ///< seconds on the monotonic clock
    std::set<std::pair<bool, std::uint8_t>> held_;
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
[[noreturn]] void startWatcher(int socket, pid_t watched, const GuardedProgram& program) {
    if (fork() == 0)
        Watcher(leaveAllBehind(socket), watched, program).run();
    _exit(0);
}

} // namespace

std::unique_ptr<Guard> Guard::start(const GuardedProgram& program) {
    int sockets[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets) != 0)
        return nullptr;
    const pid_t watched = getpid();
    const pid_t between = fork();
    if (between == 0)
        startWatcher(sockets[1], watched, program);
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

void Guard::willHold(bool isKey, std::uint8_t code) {
    tell(isKey ? HoldKey : HoldButton, code);
}

void Guard::hasLetGo(bool isKey, std::uint8_t code) {
    tell(isKey ? LetGoKey : LetGoButton, code);
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
