// SPDX-License-Identifier: MIT
#include "src/tryout/session.h"

#include <algorithm>
#include <random>

namespace tryout {

namespace {

/// Events are handled after their moment. So the far edge waits this long for one.
constexpr double kPatience = 0.1;

/// The share of the way behind the last mark. There a late press shows how late it is.
constexpr double kRoomForLate = 0.1;

/// Places across the whole way, including the near edge, in random order. Before them come those of
/// the free sweeps.
std::vector<double> marksFor(const Sweep& sweep, double target, unsigned seed) {
    std::vector<double> marks;
    marks.reserve(kMeasuredSweeps + kFreeSweeps);
    const double first = target / 2, last = sweep.travel * (1 - kRoomForLate);
    const double room = std::max(last - first, 0.0);
    for (int i = 0; i < kMeasuredSweeps; ++i)
        marks.push_back(first + room * i / (kMeasuredSweeps - 1));
    std::shuffle(marks.begin(), marks.end(), std::mt19937(seed));
    for (int i = 0; i < kFreeSweeps; ++i)
        marks.insert(marks.begin(), first + room * (i + 1) / (kFreeSweeps + 1));
    return marks;
}

} // namespace

Session::Session(const Sweep& sweep, double target, double delay, const Trigger& trigger,
                 unsigned seed)
    : sweep_(sweep), target_(target), delay_(delay), trigger_(trigger),
      marks_(marksFor(sweep, target, seed)) {}

double Session::mark() const {
    const auto place = static_cast<std::size_t>(phase_ == Phase::Stopped ? index_ - 1 : index_);
    return place < marks_.size() ? marks_[place] : 0;
}

double Session::linePosition(double moment) const {
    switch (phase_) {
    case Phase::Sweeping:
        return sweep_.positionAt(moment - started_);
    case Phase::Stopped:
        return sweep_.positionAt(stopped_ - started_);
    default:
        return 0;
    }
}

void Session::press(double moment) {
    if (isDown_)
        return;
    advance(moment);
    isDown_ = true;
    hasCounted_ = isExtra_ = false;
    pressed_ = moment;
    isExtra_ = phase_ == Phase::Stopped;
    if (trigger_.way != Trigger::Way::Release && trigger_.shortest <= 0)
        count(moment);
}

void Session::release(double moment) {
    if (!isDown_)
        return;
    advance(moment);
    isDown_ = false;
    if (trigger_.way == Trigger::Way::Release && moment - pressed_ >= trigger_.shortest)
        count(moment);
    else if (trigger_.way == Trigger::Way::Hold && hasCounted_)
        stop(moment);
    if (isExtra_)
        noteExtra(pressed_, moment);
    if (isAwaitingHold_ && !measured_.trials.empty())
        measured_.trials.back().hold = moment - pressed_;
    isAwaitingHold_ = false;
    released_ = moment;
}

void Session::act(double moment) {
    if (trigger_.way == Trigger::Way::Hold && isDown_)
        return release(moment);
    press(moment);
    if (trigger_.way == Trigger::Way::Hold)
        return;
    if (!hasCounted_)
        count(moment);
    isAwaitingHold_ = false; // it has no length
    release(moment);
}

void Session::advance(double now) {
    const bool isLongEnough = trigger_.way != Trigger::Way::Release && trigger_.shortest > 0 &&
                              now >= pressed_ + trigger_.shortest;
    if (isDown_ && !hasCounted_ && !isExtra_ && isLongEnough)
        count(pressed_ + trigger_.shortest);
    if (phase_ == Phase::Delay && now >= started_)
        phase_ = Phase::Sweeping;
    if (phase_ == Phase::Sweeping && now > started_ + sweep_.time + kPatience)
        pass();
    if (phase_ == Phase::Stopped && !isDown_ &&
        now >= std::max(stopped_, released_) + kSettlingTime)
        phase_ = index_ < kFreeSweeps + kMeasuredSweeps ? Phase::Ready : Phase::Done;
}

/// A press that is long enough does what the phase needs.
void Session::count(double moment) {
    if (hasCounted_ || isExtra_)
        return;
    hasCounted_ = true;
    if (phase_ == Phase::Ready)
        start(moment);
    else if (phase_ == Phase::Delay)
        isExtra_ = true;
    else if (phase_ == Phase::Sweeping && trigger_.way != Trigger::Way::Hold)
        stop(moment);
}

void Session::start(double moment) {
    if (isAwaitingReady_ && !measured_.trials.empty()) {
        measured_.trials.back().ready = pressed_ - released_;
        measured_.trials.back().next = pressed_ - stopped_;
    }
    isAwaitingReady_ = false;
    started_ = moment + delay_;
    phase_ = Phase::Delay;
}

void Session::stop(double moment) {
    if (phase_ == Phase::Delay) { // let go before the line set off
        noteExtra(pressed_, moment);
        phase_ = Phase::Ready;
        return;
    }
    if (phase_ != Phase::Sweeping)
        return;
    Trial trial{.markTime = sweep_.timeAt(mark()), .pressed = true};
    const double elapsed = std::clamp(moment - started_, 0.0, sweep_.time);
    trial.offset = elapsed - trial.markTime;
    trial.miss = sweep_.positionAt(elapsed) - mark();
    isAwaitingHold_ = isAwaitingReady_ = !isFree();
    finish(trial, moment);
}

/// The line has reached the far edge.
void Session::pass() {
    isAwaitingHold_ = isAwaitingReady_ = false;
    finish({.markTime = sweep_.timeAt(mark())}, started_ + sweep_.time);
}

void Session::finish(const Trial& trial, double moment) {
    last_ = trial;
    if (!isFree())
        measured_.trials.push_back(trial);
    stopped_ = moment;
    phase_ = Phase::Stopped;
    ++index_;
}

/// Presses that the settings filter out show nothing.
void Session::noteExtra(double pressed, double released) {
    const double gap = pressed - released_, hold = released - pressed;
    const bool isFiltered = hold < trigger_.shortest || pressed < stopped_ + trigger_.ignoreAfter;
    const bool isOfFree =
        index_ < kFreeSweeps || (phase_ == Phase::Stopped && index_ == kFreeSweeps);
    if (!isOfFree && !isFiltered)
        measured_.extras.push_back({gap, hold});
}

} // namespace tryout
