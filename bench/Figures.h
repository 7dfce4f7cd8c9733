// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>
#include <string>

/// What a figure may be at most.
struct Limit {
    enum Kind {
        Times, ///< of its floor
        Plus,  ///< more than its floor, in seconds
        Bytes, ///< more than its floor, in bytes
    };

    Kind kind;
    double amount;
};

/// Does one piece of work and gives the seconds, or the bytes, that it took. Negative: it failed,
/// which ends the figure.
using Measure = double (*)();

/// Registers a figure, and the floor that it is held against in the same run, with the benchmark
/// library.
void addFigure(const std::string& name, Limit limit, Measure measured, Measure floor);

// One function a subject, each in a file of its own; the order is the order of the runs.
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

/// Has the QApplication that is made next find the displays that the overlay is measured on. Gives
/// the platform of Qt's that was chosen before.
QByteArray chooseDisplays();

/// Calls `work` and gives the seconds that it took.
template <class Work>
double secondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
