// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/hitrate.h"
#include "src/tryout/trial.h"

namespace tryout {

/// How a press stops the line, according to the trigger settings.
struct Trigger {
    enum class Way {
        Press,   ///< starts the scan and stops it
        Release, ///< the same, when the key is let go
        Hold,    ///< the line moves while the key is down
        Step     ///< in a try the same as Press; in use each press moves the line
    };
    Way way = Way::Press;
    double shortest = 0;    ///< seconds; presses that are shorter don't count
    double ignoreAfter = 0; ///< seconds after a scan in which presses don't count

    bool operator==(const Trigger&) const = default;
};

constexpr int kFreeSweeps = 2;
constexpr int kMeasuredSweeps = 12;
/// Seconds after a press that stopped the line. Presses in this time are extra ones.
constexpr double kSettlingTime = 0.7;
/// After it the mark moves. Nothing may flash more often than three times a second.
static_assert(kSettlingTime > 1.0 / 3);

/// Whole seconds. A press that is held so long without anything to wait for leaves the try.
constexpr int kHoldToLeave = 4;
/// After so many sweeps in a row without a press, one leaves the try. For those whose presses can't
/// be held.
constexpr int kUnansweredSweeps = 2;
/// Seconds. After them the try goes on.
constexpr double kOfferTime = 10;

/// The course of one try, without a window or a clock. It is given every press with its event's
/// time stamp, and the time. Moments are seconds on one steady clock. Only presses are timed.
class Session {
public:
    enum class Phase {
        Ready,    ///< waits for the press that starts the next sweep
        Delay,    ///< it came; the line waits
        Sweeping, ///< the line is on its way
        Stopped,  ///< for a moment, until the key is up: extra presses come then
        Offer,    ///< sweeps went by without a press; one would leave
        Done,     ///< all sweeps are done, or enough of them when the user left
        Left      ///< the user wants to leave the page
    };

    /// `sweep` and `target` are in millimetres. `seed` determines the order of the marks.
    Session(const Sweep& sweep, double target, double delay, const Trigger& trigger, unsigned seed);

    void press(double moment);
    void release(double moment);
    /// A press without a length, by assistive technology. If the key must be held, it presses and
    /// lets go in turn.
    void act(double moment);
    /// Time passes. Call it for every frame, and before using the moment above.
    void advance(double now);

    Phase phase() const { return phase_; }

    /// Whether the key is down.
    bool isPressed() const { return isDown_; }

    /// Whole seconds, up to kHoldToLeave, for which a press has been held that has nothing to wait
    /// for. When a press of kHoldToLeave ends, the user leaves. What it measured doesn't count.
    int heldToLeave(double now) const;

    /// The present or next sweep, from 0. The first kFreeSweeps are free.
    int sweepIndex() const { return index_; }

    bool isFree() const { return index_ < kFreeSweeps; }

    double target() const { return target_; }

    /// Where the mark is, or was when Stopped, in millimetres from the near edge.
    double mark() const;
    /// The line's centre at that moment: moving, or where it stopped.
    double linePosition(double moment) const;

    /// The result of the last sweep. Valid in Stopped, Ready and Done after the first one.
    const Trial& last() const { return last_; }

    const Measured& measured() const { return measured_; }

private:
    void count(double moment);
    void start(double moment);
    void stop(double moment);
    void pass();
    Phase phaseAfterSweep();
    void leave(std::size_t kept);
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
    bool hasCounted_ = false; ///< this press has done what it was for
    bool isExtra_ = false;    ///< this press is an extra one
    bool hasLength_ = true;   ///< this press is of a key
    std::size_t before_ = 0;  ///< trials before this press
    double pressed_ = 0;      ///< when the key went down
    double released_ = 0;     ///< when it last came up
    double started_ = 0;      ///< when the line sets off, in Delay, or did
    double stopped_ = 0;
    int unanswered_ = 0; ///< sweeps, the last ones in a row
    double offered_ = 0;
    bool isAwaitingReady_ = false; ///< the next requested press shows how long it took
    bool isAwaitingHold_ = false;  ///< the press that stopped the line isn't over
};

} // namespace tryout
