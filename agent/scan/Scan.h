// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Presses.h"
#include "agent/scan/Region.h"
#include "src/scan/sweep.h"

#include <cstddef>
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
    Region region;                 ///< the lines end at its edges
    /// What a press now would hit. None: the pointer's place.
    std::optional<Area> target = {};

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

    /// A press or a choice begins a scan of these regions: at least one, none of them empty, with
    /// times above 0. Only when idle.
    void start(std::vector<Region> regions, double moment);
    /// The same regions with other times, which hold from the next sweep on. Without effect if they
    /// are other ones.
    void setTimes(const std::vector<Region>& regions);
    /// What a switch did while a scan is under way. Others are ignored. False if the scan had ended
    /// before: the press may begin the next one.
    bool signal(const Signal& signal);
    /// Ends the scan without a choice.
    void cancel();
    /// Time passes.
    void advance(double now);

    /// When advance is needed next, besides the frames. Infinite when idle. No phase is without an
    /// end, whatever the settings.
    double deadline() const;

    Phase phase() const { return state_.phase; }

    bool isIdle() const { return phase() == Phase::Idle; }

    /// Whether something moves, so that each frame differs.
    bool isMoving() const { return isMoving(state_); }

    /// At or near the present moment. Before they set off, line and pointer wait at the near edge.
    Picture pictureAt(double moment) const;

    /// The choice, once: the point between the presses' moments. None while there is none.
    std::optional<Place> takeChoice();

    /// The region of the present, or of the last choice. Only once a scan was started.
    const Region& region() const { return regions_[state_.region]; }

private:
    /// Where a scan stands, in a value of its own: what is ahead can be looked at in a copy.
    struct State {
        Phase phase = Phase::Idle;
        ScanRules rules;        ///< of this line or pointer
        std::size_t region = 0; ///< its index
        int pass = 0;           ///< how often the same way was swept to its end
        double line = 0;        ///< y of the line that has been chosen
        double since = 0;       ///< the signal after which line or pointer stands

        Sweep sweep;                ///< of what moves, or is let go
        double setOff = 0;          ///< when it set off, or will; its rests put it off
        std::optional<double> rest; ///< in inverse scanning: how far it was when let go, as a time

        // In step scanning: the stretch that is divided, from the region's near edge, and the part
        // of it that is shown.
        double from = 0, length = 0;
        int part = 0;
        bool isInBand = false;

        std::optional<Place> choice;
    };

    static bool isMoving(const State& state) {
        return state.phase == Phase::Line || state.phase == Phase::Pointer;
    }

    static bool isOfPointer(const State& state) { return state.phase >= Phase::PointerDelay; }

    const Area& area(const State& state) const { return regions_[state.region].area; }

    static double due(const State& state);
    void change(State& state) const;
    void settle(State& state, double moment) const;

    void begin(State& state, Phase delay, double moment) const;
    void sweep(State& state, Phase delay, double setOff) const;
    void divide(State& state, double from, double length) const;
    bool findsWay(State& state) const;
    void choose(State& state, double position, double moment) const;
    void finish(State& state, Place place) const;

    void automatic(State& state, const Signal& signal) const;
    void inverse(State& state, const Signal& signal) const;
    void letGo(State& state, double moment) const;
    void step(State& state, const Signal& signal) const;
    std::optional<double> position(const State& state, double moment) const;

    ScanRules rules_;
    std::vector<Region> regions_;
    State state_;
};
