// SPDX-License-Identifier: MIT
// A command that only reads, from the start of its process to the end. Floor: a bare program that
// is linked alike and parses the same file.

#include "bench/Figures.h"
#include "src/store/prefs.h"

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace {

/// Runs a program to its end and drops its output. Negative when it fails.
template <std::size_t N>
double runToEnd(const char* const (&command)[N]) {
    char* arguments[N + 1] = {};
    for (std::size_t i = 0; i < N; ++i)
        arguments[i] = const_cast<char*>(command[i]);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
    int status = -1;
    const double seconds = secondsOf([&] {
        pid_t child;
        if (posix_spawn(&child, arguments[0], &files, nullptr, arguments, environ) == 0)
            waitpid(child, &status, 0);
    });
    posix_spawn_file_actions_destroy(&files);
    return status == 0 ? seconds : -1;
}

double getSetting() {
    return runToEnd({KORVEX_HOST, "get", "scanner.lineScanTime"});
}

double getBare() {
    static const std::string file = std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/" +
                                    kAgentBundleIDText + ".plist";
    return runToEnd({BARE_GET, file.c_str()});
}

} // namespace

void addCommandFigures() {
    addFigure("get of one setting, from start to end", {Limit::Times, 1.5}, getSetting, getBare);
}
