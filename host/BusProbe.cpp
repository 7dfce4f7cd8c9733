// SPDX-License-Identifier: MIT
#include "host/BusProbe.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr const char* kAddressVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr int kPatienceMs = 1900; // with all else a command still ends within two seconds

std::string busAddress() {
    if (const char* address = std::getenv(kAddressVariable))
        return address;
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    return runtime ? "unix:path=" + std::string(runtime) + "/bus" : std::string();
}

/// The name of an address's first socket, as in a socket address: an abstract one begins with a
/// zero byte. Empty for other transports.
std::string socketName(const std::string& address) {
    const std::string name = address.substr(0, address.find_first_of(",;"));
    const std::size_t text = name.find('=') + 1;
    if (name.starts_with("unix:path="))
        return name.substr(text);
    return name.starts_with("unix:abstract=") ? '\0' + name.substr(text) : std::string();
}

/// Whether a server listens but doesn't answer. Without a server it fails at once.
bool hangs(const std::string& name) {
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (name.empty() || name.size() >= sizeof place.sun_path)
        return false;
    std::copy(name.begin(), name.end(), place.sun_path);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    const int file = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    bool isWaiting = false;
    if (file >= 0 && connect(file, reinterpret_cast<const sockaddr*>(&place), size) == 0 &&
        send(file, "\0AUTH\r\n", 7, MSG_NOSIGNAL) == 7) { // it answers with ways to log in
        pollfd answer{file, POLLIN, 0};
        isWaiting = poll(&answer, 1, kPatienceMs) == 0;
    }
    close(file);
    return isWaiting;
}

} // namespace

void leaveOutHangingBus() {
    if (!hangs(socketName(busAddress())))
        return;
    std::fputs("korvex-preferences: the session bus doesn't answer, so it is left out\n", stderr);
    setenv(kAddressVariable, "unix:path=/nonexistent", 1);
}
