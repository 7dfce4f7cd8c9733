// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>
#include <ctime>
#include <string>

/// The limit of a figure.
struct Limit {
    enum Kind {
        Times, ///< a multiple of its floor
        Plus,  ///< more than its floor, in seconds
        Bytes, ///< more than its floor, in bytes
        // Without regard to a floor, which may be missing:
        Seconds,
        Share, ///< of a processor
        Count,
    };

    Kind kind;
    double amount;
};

/// Does one piece of work and returns the seconds, bytes or whatever it took. A negative result
/// means failure, which ends the figure.
using Measure = double (*)();

/// Registers a figure, and the floor that it is compared with in the same run.
void addFigure(const std::string& name, Limit limit, Measure measured, Measure floor = nullptr);

// One function for each subject and file, in the order of the runs.
void addPrefsFigures();
void addLinkFigures();
void addOverlayFigures();
void addPaletteFigures();
void addPreviewFigures();
void addTryFigures();
void addHotKeyFigures();
void addChangeFigures();
void addStartFigures();
void addCommandFigures();
void addLaunchFigures();
void addAgentFigures();

/// Sets the displays for the next QApplication to those of the overlay's figures. Returns Qt's
/// platform from before.
QByteArray chooseDisplays();

/// The work of this thread since it began.
inline double threadSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Calls `work`, which waits for nobody, and returns the seconds this thread worked. Other
/// programs don't count.
template <class Work>
double workSecondsOf(Work&& work) {
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

/// Calls `work` and returns the seconds it took.
template <class Work>
double secondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
