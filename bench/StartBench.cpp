// SPDX-License-Identifier: MIT
// The program's start until its first frame. Floor: a bare Qt program that loads and shows the same
// form with rows of Qt's own widgets. Both run offscreen; a plug-in (FrameProbe) reports the frame.

#include "bench/Figures.h"
#include "tests/support/NoticeMuting.h"

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

struct FrameReport {
    std::int64_t nanoseconds; ///< of the steady clock
    std::int64_t residentBytes;
};

struct Start {
    double seconds = -1;
    double bytes = -1;
};

/// Starts the program and stops it after its first frame.
Start start(const char* program, const char* argument) {
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    setenv("KORVEX_FRAME_PROBE", std::to_string(ends[1]).c_str(), 1);
    char* arguments[] = {const_cast<char*>(program), const_cast<char*>(argument), nullptr};
    const auto before = std::chrono::steady_clock::now();
    pid_t child;
    const bool started = posix_spawn(&child, program, nullptr, nullptr, arguments, environ) == 0;
    close(ends[1]);
    FrameReport report{};
    const bool shown = started && read(ends[0], &report, sizeof report) == sizeof report;
    close(ends[0]);
    if (started) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    if (!shown)
        return {};
    const std::chrono::nanoseconds since = before.time_since_epoch();
    return {static_cast<double>(report.nanoseconds - since.count()) * 1e-9,
            static_cast<double>(report.residentBytes)};
}

Start startPane() {
    return start(KORVEX_HOST, KORVEX_BUNDLE);
}

Start startBare() {
    return start(BARE_FORM, KORVEX_BUNDLE "/Contents/Resources/Pane.ui");
}

} // namespace

void addStartFigures() {
    muteNotice(); // and the first steps: the form is what both show
    setenv("QT_PLUGIN_PATH", FRAME_PROBE_PATH, 1);
    setenv("QT_QPA_GENERIC_PLUGINS", "frameprobe", 1);
    setenv("QT_LOGGING_RULES", "*.warning=false", 1);
    addFigure(
        "process start until the first frame", {Limit::Times, 1.2},
        [] { return startPane().seconds; }, [] { return startBare().seconds; });
    addFigure(
        "resident memory after the first frame", {Limit::Bytes, 5 << 20},
        [] { return startPane().bytes; }, [] { return startBare().bytes; });
}
