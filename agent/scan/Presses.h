// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

/// What a person presses. The first and the second are the two scan keys. A mouse button that is
/// used as a switch is the first one; the second mouse button is a switch only during a scan.
enum class Switch { First, Second, SecondButton };
constexpr int kSwitches = 3;

/// The ways to scan, as stored.
enum class ScanMode { Automatic = 0, Inverse = 1, Step = 2 };

/// What counts, in seconds where it is a time.
struct PressRules {
    explicit PressRules(const PrefsRecord& record); ///< a checked one
    PressRules() = default;

    ScanMode mode = ScanMode::Automatic;
    double shortest = 0;          ///< shorter presses don't count
    bool countsOnRelease = false; ///< in automatic scanning: the moment of letting go counts
    double ignoredAfterClick = 0;
};

/// In step scanning a switch that is held so long chooses.
constexpr double kHoldToChoose = 1;
/// A switch that is held so long switches scanning on again, if it is off.
constexpr double kHoldToWake = 4;
/// A switch that is held so long ends all that goes on.
constexpr double kHoldToEnd = 10;

/// Something that a switch did and that counts.
struct Signal {
    enum class Kind {
        Press,   ///< starts, stops or moves the scan
        Release, ///< in inverse scanning: the switch of a press that counted was let go
        Choose,  ///< in step scanning
        Wake,    ///< it is held for kHoldToWake
        End      ///< it is held for kHoldToEnd
    };
    Kind kind;
    Switch which;
    double moment; ///< when it counts

    bool operator==(const Signal&) const = default;
};

/// Decides which presses count and when, without a device or a clock. Moments are seconds on one
/// steady clock.
///
/// Automatic scanning: a press counts once it is as long as the shortest; with countsOnRelease when
/// it is let go. Inverse scanning: its release counts too. Step scanning: the first switch steps
/// when it is let go, and chooses when it is held on for kHoldToChoose; the others choose at once.
class Presses {
public:
    /// A press that is under way goes on under the new rules.
    void setRules(const PressRules& rules) { rules_ = rules; }

    /// A second `down` without an `up` is a repetition and does nothing.
    void down(Switch which, double moment);
    void up(Switch which, double moment);
    /// Time passes. Call it at deadline() or later, and before a moment above is used.
    void advance(double now);

    /// When advance is needed next. Infinite if nothing waits.
    double deadline() const;

    /// A click was made. Presses that begin sooner than ignoredAfterClick after it don't count.
    void clicked(double moment) { clicked_ = moment; }

    /// The switches are somebody else's now: what is down is forgotten and counts for nothing, and
    /// what wasn't taken yet.
    void forget();

    /// What has counted since the last call, in order of moments.
    std::vector<Signal> take();

private:
    /// A switch that is down.
    struct Held {
        bool isDown = false;
        double since = 0;
        bool mayCount = false;     ///< it hasn't counted yet, and isn't ignored
        bool hasPressed = false;   ///< its Press has counted
        std::size_t longHolds = 0; ///< how many of Wake and End it has signalled
    };

    Held& of(Switch which) { return held_[static_cast<std::size_t>(which)]; }

    const Held& of(Switch which) const { return held_[static_cast<std::size_t>(which)]; }

    bool countsWhenLetGo(Switch which) const;
    /// What it signals next if it is held on.
    std::optional<Signal> next(Switch which) const;

    PressRules rules_;
    std::array<Held, kSwitches> held_;
    double clicked_ = -std::numeric_limits<double>::infinity();
    std::vector<Signal> signals_; ///< not taken yet
};
