// SPDX-License-Identifier: MIT
#include "src/tryout/session.h"

#include "src/tryout/advice.h"

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
    isDown_ = hasLength_ = true;
    before_ = measured_.trials.size();
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
    const bool isOfferTaken = phase_ == Phase::Offer && moment - pressed_ >= trigger_.shortest;
    const bool leaves = isOfferTaken || heldToLeave(moment) == kHoldToLeave;
    isDown_ = false;
    if (leaves)
        return leave(before_);
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
    advance(moment);
    if (phase_ == Phase::Offer)
        return leave(measured_.trials.size());
    if (trigger_.way == Trigger::Way::Hold && isDown_)
        return release(moment);
    press(moment);
    hasLength_ = false;
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
        phase_ = phaseAfterSweep();
    if (phase_ == Phase::Offer && !isDown_ && now >= offered_ + kOfferTime)
        phase_ = Phase::Ready;
}

Session::Phase Session::phaseAfterSweep() {
    if (index_ == kFreeSweeps + kMeasuredSweeps)
        return Phase::Done;
    if (unanswered_ < kUnansweredSweeps)
        return Phase::Ready;
    unanswered_ = 0;
    offered_ = std::max(stopped_, released_) + kSettlingTime;
    return Phase::Offer;
}

// Where letting go stops the line, a press may last until the line has passed.
int Session::heldToLeave(double now) const {
    const bool stopsByRelease =
        trigger_.way == Trigger::Way::Release || trigger_.way == Trigger::Way::Hold;
    const bool isOnItsWay = phase_ == Phase::Delay || phase_ == Phase::Sweeping;
    if (!isDown_ || !hasLength_ || (stopsByRelease && isOnItsWay))
        return 0;
    const double since = pressed_ + trigger_.shortest;
    const double idle = now - (stopsByRelease ? std::max(since, stopped_) : since);
    return std::clamp(static_cast<int>(idle), 0, kHoldToLeave);
}

/// Enough trials have a result, which is left by leaving once more.
void Session::leave(std::size_t kept) {
    measured_.trials.resize(kept);
    const auto presses = std::count_if(measured_.trials.begin(), measured_.trials.end(),
                                       [](const Trial& trial) { return trial.pressed; });
    phase_ = phase_ != Phase::Done && presses >= kFewestTrials ? Phase::Done : Phase::Left;
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
    unanswered_ = 0;
    finish(trial, moment);
}

/// The line has reached the far edge.
void Session::pass() {
    isAwaitingHold_ = isAwaitingReady_ = false;
    ++unanswered_;
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
