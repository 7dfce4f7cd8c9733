// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Presses.h"
#include "agent/scan/Region.h"
#include "src/scan/sweep.h"

#include <optional>
#include <vector>

/// How a scan goes. Times in seconds.
struct ScanRules {
    explicit ScanRules(const PrefsRecord& record); ///< a checked one
    ScanRules() = default;

    ScanMode mode = ScanMode::Automatic;
    bool accelerates = false;
    double delay = 0;       ///< before the line and before the pointer set off
    double releaseTime = 0; ///< inverse scanning: after it what was let go is chosen
    double cancelTime = 10; ///< step and inverse scanning: without a press the scan ends
};

/// What is to be seen at a moment.
struct Picture {
    std::optional<double> line;    ///< the scan line's centre, y
    std::optional<double> guide;   ///< the stopped line's centre, y: the pointer's path
    std::optional<double> pointer; ///< the pointer's hot spot on the guide, x
    std::optional<Area> band;      ///< in step scanning: what the next presses divide
    Area region;                   ///< the lines end at its edges

    bool operator==(const Picture&) const = default;
};

constexpr int kBands = 10; ///< of step scanning, and the steps in each

/// The course of one scan after another, without a window or a clock: a line, a pointer along it, a
/// choice. Moments are seconds on one steady clock. A signal may come up to kLateness after its
/// moment; what happened meanwhile is taken as not having happened.
///
/// Automatic scanning: a press starts, the next stops the line, the next stops the pointer. Inverse
/// scanning: line and pointer move while a switch is down. Let go, they stand; a press within
/// releaseTime goes on. Step scanning: each press moves on by a band, after a choice by a step
/// inside of it.
///
/// At the far edge: a line goes on to the next region; a single region is swept once more, after
/// the delay. The pointer goes its way twice. Then the scan ends.
class Scan {
public:
    enum class Phase { Idle, LineDelay, Line, LineRest, PointerDelay, Pointer, PointerRest };

    /// Signals may be late by so much, in seconds.
    static constexpr double kLateness = 0.02;

    /// Hold from the next sweep on.
    void setRules(const ScanRules& rules) { rules_ = rules; }

    /// A press or a choice begins a scan of these regions, which aren't empty. Only when idle.
    void start(std::vector<Region> regions, double moment);
    /// What a switch did while a scan is under way. Others are ignored.
    void signal(const Signal& signal);
    /// Ends the scan without a choice.
    void cancel();
    /// Time passes.
    void advance(double now);

    /// When advance is needed next, besides the frames. Infinite when idle. No phase is without an
    /// end, whatever the settings.
    double deadline() const;

    Phase phase() const { return phase_; }

    bool isIdle() const { return phase_ == Phase::Idle; }

    /// Whether something moves, so that each frame differs.
    bool isMoving() const { return phase_ == Phase::Line || phase_ == Phase::Pointer; }

    /// At or near the present moment.
    Picture pictureAt(double moment) const;

    /// The choice, once: the point between the presses' moments. None while there is none.
    std::optional<Place> takeChoice();

private:
    ScanRules rules_;
    Phase phase_ = Phase::Idle;
};
