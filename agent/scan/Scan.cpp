// SPDX-License-Identifier: MIT
#include "agent/scan/Scan.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int kPasses = 2; ///< of a line over a single region, and of a pointer along its line

double partOf(double length) {
    return length / kBands;
}

bool isPress(const Signal& signal) {
    return signal.kind == Signal::Kind::Press || signal.kind == Signal::Kind::Choose;
}

} // namespace

ScanRules::ScanRules(const PrefsRecord& record)
    : mode(static_cast<ScanMode>(record.scanMode)), accelerates(record.useScanAcceleration),
      delay(record.preScanDelay), releaseTime(record.inverseReleaseTime),
      cancelTime(record.stepScanCancelTime) {}

void Scan::start(std::vector<Region> regions, double moment) {
    if (!isIdle() || regions.empty())
        return;
    regions_ = std::move(regions);
    state_.region = 0;
    begin(state_, Phase::LineDelay, moment);
    settle(state_, moment);
}

void Scan::setTimes(const std::vector<Region>& regions) {
    if (std::ranges::equal(regions, regions_, {}, &Region::area, &Region::area))
        regions_ = regions;
}

bool Scan::signal(const Signal& signal) {
    settle(state_, signal.moment);
    if (isIdle())
        return false;
    switch (state_.rules.mode) {
    case ScanMode::Automatic:
        automatic(state_, signal);
        break;
    case ScanMode::Inverse:
        inverse(state_, signal);
        break;
    case ScanMode::Step:
        step(state_, signal);
        break;
    }
    settle(state_, signal.moment); // a time of 0 has passed at once
    return true;
}

void Scan::cancel() {
    state_ = {};
}

void Scan::advance(double now) {
    while (!isIdle() && deadline() <= now)
        change(state_);
}

// A signal from before a far edge or a time-out may be on its way. Setting off waits for none: a
// signal from before it is known by its moment.
double Scan::deadline() const {
    const bool isDelay = phase() == Phase::LineDelay || phase() == Phase::PointerDelay;
    return due(state_) + (isDelay ? 0 : kLateness);
}

std::optional<Place> Scan::takeChoice() {
    return std::exchange(state_.choice, std::nullopt);
}

Picture Scan::pictureAt(double moment) const {
    State state = state_;
    settle(state, moment);
    if (state.phase == Phase::Idle)
        return {};
    const Area& all = area(state);
    Picture picture;
    picture.region = regions_[state.region];
    const bool isPointer = isOfPointer(state);
    if (const auto position = this->position(state, moment))
        (isPointer ? picture.pointer : picture.line) = (isPointer ? all.left : all.top) + *position;
    if (isPointer)
        picture.guide = state.line;
    if (state.rules.mode == ScanMode::Step) {
        const double length = state.isInBand ? state.length : partOf(state.length);
        const double from = state.from + (state.isInBand ? 0 : state.part * length);
        picture.band = isPointer ? Area{all.left + from, all.top, length, all.height}
                                 : Area{all.left, all.top + from, all.width, length};
    }
    return picture;
}

/// Of line or pointer, from the region's near edge. None for a pointer that waits for a press.
std::optional<double> Scan::position(const State& state, double moment) const {
    if (state.rules.mode == ScanMode::Step)
        return state.from + (state.part + 0.5) * partOf(state.length);
    if (state.phase == Phase::LineRest || state.phase == Phase::PointerRest)
        return state.rest ? std::optional(state.sweep.positionAt(*state.rest)) : std::nullopt;
    return state.sweep.positionAt(moment - state.setOff);
}

/// When it changes without a signal.
double Scan::due(const State& state) {
    switch (state.phase) {
    case Phase::LineDelay:
    case Phase::PointerDelay:
        return state.setOff;
    case Phase::Line:
    case Phase::Pointer:
        return state.setOff + state.sweep.time;
    case Phase::LineRest:
    case Phase::PointerRest:
        return state.since + (state.rest ? state.rules.releaseTime : state.rules.cancelTime);
    case Phase::Idle:
        break;
    }
    return std::numeric_limits<double>::infinity();
}

/// Changes as it is due, timed from that moment.
void Scan::change(State& state) const {
    const double moment = due(state);
    switch (state.phase) {
    case Phase::LineDelay:
        state.phase = Phase::Line;
        break;
    case Phase::PointerDelay:
        state.phase = Phase::Pointer;
        break;
    case Phase::Line:
    case Phase::Pointer: {
        const std::size_t before = state.region;
        if (findsWay(state))
            sweep(state, isOfPointer(state) ? Phase::PointerDelay : Phase::LineDelay,
                  moment + (state.region == before ? state.rules.delay : 0));
        break;
    }
    case Phase::LineRest:
    case Phase::PointerRest:
        if (state.rest)
            choose(state, state.sweep.positionAt(*state.rest), moment);
        else
            state.phase = Phase::Idle;
        break;
    case Phase::Idle:
        break;
    }
}

/// Changes all that is due up to that moment.
void Scan::settle(State& state, double moment) const {
    while (state.phase != Phase::Idle && due(state) <= moment)
        change(state);
}

/// The line or the pointer begins, by the rules of the present.
void Scan::begin(State& state, Phase delay, double moment) const {
    state.rules = rules_;
    state.pass = 0;
    state.since = moment;
    state.rest.reset();
    state.isInBand = false;
    const bool isPointer = delay == Phase::PointerDelay;
    const bool steps = state.rules.mode == ScanMode::Step;
    if (!steps && !(isPointer && state.rules.mode == ScanMode::Inverse))
        return sweep(state, delay, moment + state.rules.delay);
    state.phase = isPointer ? Phase::PointerRest : Phase::LineRest;
    if (steps)
        divide(state, 0, isPointer ? area(state).width : area(state).height);
}

void Scan::sweep(State& state, Phase delay, double setOff) const {
    const Region& region = regions_[state.region];
    state.phase = delay;
    state.setOff = setOff;
    state.sweep = delay == Phase::PointerDelay
                      ? Sweep{region.area.width, region.pointerTime, state.rules.accelerates}
                      : Sweep{region.area.height, region.lineTime, state.rules.accelerates};
}

void Scan::divide(State& state, double from, double length) const {
    state.from = from;
    state.length = length;
    state.part = 0;
}

/// At the far edge: the next region, or the same way again. The scan ends if there is none.
bool Scan::findsWay(State& state) const {
    const bool isOverAll = !isOfPointer(state) && !state.isInBand && regions_.size() > 1;
    const bool goesOn = isOverAll ? ++state.region < regions_.size() : ++state.pass < kPasses;
    if (!goesOn)
        state.phase = Phase::Idle;
    return goesOn;
}

/// Line or pointer stays at that position.
void Scan::choose(State& state, double position, double moment) const {
    const Area& all = area(state);
    if (isOfPointer(state))
        return finish(state, {all.left + position, state.line});
    state.line = all.top + position;
    if (regions_[state.region].isMenu)
        finish(state, {all.middle().x, state.line});
    else
        begin(state, Phase::PointerDelay, moment);
}

/// The far edges are outside: what is chosen there is the last pixel.
void Scan::finish(State& state, Place place) const {
    const Area& all = area(state);
    state.choice = Place{std::clamp(place.x, all.left, std::max(all.left, all.right() - 1)),
                         std::clamp(place.y, all.top, std::max(all.top, all.bottom() - 1))};
    state.phase = Phase::Idle;
}

/// Before it sets off a press does nothing.
void Scan::automatic(State& state, const Signal& signal) const {
    if (isPress(signal) && signal.moment >= state.setOff)
        choose(state, state.sweep.positionAt(signal.moment - state.setOff), signal.moment);
}

void Scan::inverse(State& state, const Signal& signal) const {
    const bool isResting = state.phase == Phase::LineRest || state.phase == Phase::PointerRest;
    if (!isResting && signal.kind == Signal::Kind::Release)
        return letGo(state, signal.moment);
    if (!isResting || !isPress(signal))
        return;
    if (!state.rest)
        return sweep(state, Phase::PointerDelay, signal.moment + state.rules.delay);
    state.phase = isOfPointer(state) ? Phase::Pointer : Phase::Line;
    state.setOff = signal.moment - *std::exchange(state.rest, std::nullopt);
}

/// Before it has set off the line goes, and the pointer waits for a press again.
void Scan::letGo(State& state, double moment) const {
    const bool hasSetOff = moment >= state.setOff;
    if (!hasSetOff && isOfPointer(state))
        return begin(state, Phase::PointerDelay, moment);
    if (!hasSetOff) {
        state.phase = Phase::Idle;
        return;
    }
    state.phase = isOfPointer(state) ? Phase::PointerRest : Phase::LineRest;
    state.since = moment;
    state.rest = moment - state.setOff;
}

void Scan::step(State& state, const Signal& signal) const {
    if (!isPress(signal))
        return;
    state.since = signal.moment;
    const double part = partOf(state.length), from = state.from + state.part * part;
    if (signal.kind == Signal::Kind::Choose && state.isInBand)
        return choose(state, from + part / 2, signal.moment);
    if (signal.kind == Signal::Kind::Choose) {
        divide(state, from, part);
        state.isInBand = true;
        state.pass = 0;
    } else if (++state.part == kBands && findsWay(state)) {
        state.part = 0;
        if (!state.isInBand)
            state.length = isOfPointer(state) ? area(state).width : area(state).height;
    }
}
