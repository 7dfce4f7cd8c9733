// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/trial.h"

#include "src/tryout/hitrate.h"

namespace tryout {

/// How a press stops the line, as the settings of triggers say.
struct Trigger {
    enum class Way {
        Press,   ///< starts the scan and stops it
        Release, ///< the same, when the key is let go
        Hold,    ///< the line moves while the key is down
        Step     ///< in use each press moves the line; in a try it sweeps, and this is Press
    };
    Way way = Way::Press;
    double shortest = 0;    ///< seconds; presses that are shorter don't count
    double ignoreAfter = 0; ///< seconds after a scan in which presses don't count

    bool operator==(const Trigger&) const = default;
};

constexpr int kFreeSweeps = 2;
constexpr int kMeasuredSweeps = 12;
/// Presses this soon after one that stopped the line are none that anybody asked for, in seconds.
constexpr double kSettlingTime = 0.7;
/// The mark changes its place after it: nothing may flash more often than three times a second.
static_assert(kSettlingTime > 1.0 / 3);

/// The course of one try, without a window or a clock: it is told of every press with the moment
/// of the event itself, and of the time. Moments are seconds of one steady clock. Nothing is
/// timed but the presses.
class Session {
public:
    enum class Phase {
        Ready,    ///< waits for the press that starts the next sweep
        Delay,    ///< it came; the line waits
        Sweeping, ///< the line is on its way
        Stopped,  ///< for a moment, until the key is up: what nobody asked for shows itself
        Done      ///< all sweeps are over
    };

    /// `sweep` and `target` in millimetres; the marks' order differs by `seed`.
    Session(const Sweep& sweep, double target, double delay, const Trigger& trigger, unsigned seed);

    void press(double moment);
    void release(double moment);
    /// A press without a length, as assistive technology makes it; when the key is to be held, it
    /// presses and lets go in turn.
    void act(double moment);
    /// Time passes: to be told at every frame, and whenever the moment above counts on it.
    void advance(double now);

    Phase phase() const { return phase_; }

    /// Whether the key is down.
    bool isPressed() const { return isDown_; }

    /// The sweep under way or next, from 0; the first kFreeSweeps are free.
    int sweepIndex() const { return index_; }

    bool isFree() const { return index_ < kFreeSweeps; }

    const Sweep& sweep() const { return sweep_; }

    double target() const { return target_; }

    /// Where the mark stands, or stood when Stopped, in millimetres from the near edge; 0 when
    /// Done.
    double mark() const;
    /// Where the line's centre is at that moment: on its way, or where it stopped.
    double linePosition(double moment) const;

    /// What became of the last sweep; Stopped, Ready and Done after the first one.
    const Trial& last() const { return last_; }

    const Measured& measured() const { return measured_; }

private:
    void count(double moment);
    void start(double moment);
    void stop(double moment);
    void pass();
    void finish(const Trial& trial, double moment);
    void noteExtra(double pressed, double released);

    Sweep sweep_;
    double target_, delay_;
    Trigger trigger_;
    std::vector<double> marks_;
    Measured measured_;
    Trial last_;

    Phase phase_ = Phase::Ready;
    int index_ = 0;
    bool isDown_ = false;
    bool hasCounted_ = false; ///< this press did what it was for
    bool isExtra_ = false;    ///< this press came when nothing asked for it
    double pressed_ = 0;      ///< when the key went down
    double released_ = 0;     ///< when it last came up
    double started_ = 0;      ///< when the line sets off, in Delay, or did
    double stopped_ = 0;
    bool isAwaitingReady_ = false; ///< the next press that is asked for tells how long it took
    bool isAwaitingHold_ = false;  ///< the press that stopped the line still lasts
};

} // namespace tryout
