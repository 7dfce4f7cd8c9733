// SPDX-License-Identifier: MIT
#include "tests/support/XvfbServer.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kStartTime = 20000; ///< ms

[[noreturn]] void runServer(int displayFile, const std::string& screen) {
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    const std::string file = std::to_string(displayFile);
    execlp("Xvfb", "Xvfb", "-displayfd", file.c_str(), "-screen", "0", screen.c_str(), "-nolisten",
           "tcp", "-noreset", nullptr);
    _exit(127);
}

/// What the server writes once it is ready: its display's number.
std::string readNumber(int file) {
    std::string number;
    pollfd waiting = {file, POLLIN, 0};
    char character = 0;
    while (poll(&waiting, 1, kStartTime) == 1 && read(file, &character, 1) == 1 &&
           character != '\n')
        number += character;
    return number;
}

} // namespace

XvfbServer::XvfbServer(int width, int height) {
    int files[2];
    if (pipe(files) != 0)
        return;
    fcntl(files[0], F_SETFD, FD_CLOEXEC);
    const std::string screen = std::to_string(width) + "x" + std::to_string(height) + "x24";
    pid_ = fork();
    if (pid_ == 0)
        runServer(files[1], screen);
    close(files[1]);
    const std::string number = readNumber(files[0]);
    close(files[0]);
    if (number.empty()) {
        kill();
        ADD_FAILURE() << "Xvfb doesn't start";
    }
    setenv("DISPLAY", (":" + number).c_str(), 1);
}

XvfbServer::~XvfbServer() {
    kill();
    unsetenv("DISPLAY");
}

void XvfbServer::kill() {
    if (pid_ <= 0)
        return;
    // Asked to end, it removes its socket.
    ::kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
    pid_ = 0;
}
