// SPDX-License-Identifier: MIT
#include "agent/scan/Actions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

const ActionRow& rowOf(UInt8 action) {
    return kActionRows[action < kActionRows.size() ? action : 0];
}

bool isForAPoint(ActionKind kind) {
    return kind >= ActionKind::Click && kind <= ActionKind::Scroll;
}

} // namespace

void Actions::setRepeatTime(double seconds) {
    repeatTime_ = std::max(seconds, kShortestRepeat);
}

void Actions::arm(ActionKind kind) {
    if (kind == ActionKind::Shift)
        shift_ = !shift_;
    else if (kind == ActionKind::Control)
        control_ = !control_;
    else
        armed_ = armed_ == kind ? ActionKind::Click : kind;
}

void Actions::chooseButton(UInt8 action, double moment) {
    press();
    const ActionRow& row = rowOf(action);
    if (row.kind == ActionKind::None)
        return;
    if (row.kind == ActionKind::Hold && held_ && held_->kind == ActionKind::Hold) {
        deeds_.push_back({.kind = Deed::Kind::ButtonUp, .place = held_->now});
        held_.reset();
    } else if (isForAPoint(row.kind)) {
        arm(row.kind);
    } else if (row.kind == ActionKind::Again) {
        if (last_ &&
            (!held_ || last_->kind == Deed::Kind::Action)) // a held button stays where it is
            doOnce(*last_, lastRepeats_, moment);
    } else {
        doOnce({.kind = Deed::Kind::Action, .action = action}, row.repeats, moment);
    }
}

void Actions::doOnce(const Deed& deed, bool repeats, double moment) {
    deeds_.push_back(deed);
    last_ = deed;
    lastRepeats_ = repeats;
    if (repeats)
        repetition_ = {deed, kMostRepeats - 1, moment + repeatTime_};
}

void Actions::choosePoint(Place place, double moment) {
    press();
    if (held_)
        return pointWhileHeld(place, moment);
    const ActionKind kind = std::exchange(armed_, ActionKind::Click);
    switch (kind) {
    case ActionKind::Drag:
    case ActionKind::Hold:
        held_ = {kind, place, place,
                 moment + (kind == ActionKind::Drag ? kLongestDrag : kLongestHold)};
        deeds_.push_back({.kind = Deed::Kind::ButtonDown, .place = place});
        break;
    case ActionKind::Move:
        doOnce({.kind = Deed::Kind::Move, .place = place}, false, moment);
        break;
    case ActionKind::Scroll:
        doOnce({.kind = Deed::Kind::Scroll, .place = place}, true, moment);
        break;
    default:
        doOnce({.kind = Deed::Kind::Click,
                .place = place,
                .click = kind,
                .shift = std::exchange(shift_, false),
                .control = std::exchange(control_, false)},
               false, moment);
    }
}

/// The second point of a drag ends it; further points move what is held along.
void Actions::pointWhileHeld(Place place, double moment) {
    deeds_.push_back({.kind = Deed::Kind::Move, .place = place});
    held_->now = place;
    held_->until = moment + kLongestHold;
    if (held_->kind == ActionKind::Drag) {
        deeds_.push_back({.kind = Deed::Kind::ButtonUp, .place = place});
        held_.reset();
    }
}

bool Actions::press() {
    return std::exchange(repetition_, std::nullopt).has_value();
}

void Actions::giveUp() {
    if (held_)
        deeds_.push_back({.kind = Deed::Kind::GiveUp, .place = held_->began});
    held_.reset();
}

void Actions::cancel() {
    press();
    giveUp();
    armed_ = ActionKind::Click;
    shift_ = control_ = false;
}

void Actions::advance(double now) {
    if (held_ && now >= held_->until)
        giveUp();
    // After a pause of the whole program what was missed isn't made up for.
    if (repetition_ && now >= repetition_->next) {
        deeds_.push_back(repetition_->deed);
        repetition_->next = std::max(repetition_->next + repeatTime_, now + repeatTime_ / 2);
        if (--repetition_->left == 0)
            repetition_.reset();
    }
}

double Actions::deadline() const {
    return std::min(held_ ? held_->until : kNever, repetition_ ? repetition_->next : kNever);
}

std::vector<Deed> Actions::take() {
    return std::exchange(deeds_, {});
}

bool Actions::isOn(UInt8 action) const {
    const ActionKind kind = rowOf(action).kind;
    if (kind == ActionKind::Shift)
        return shift_;
    if (kind == ActionKind::Control)
        return control_;
    const bool isHeld = held_ && held_->kind == kind;
    const bool repeats = repetition_ && (repetition_->deed.kind == Deed::Kind::Scroll
                                             ? kind == ActionKind::Scroll
                                             : repetition_->deed.action == action);
    const bool isArmed = isForAPoint(kind) && kind != ActionKind::Click && armed_ == kind;
    return isHeld || repeats || isArmed;
}
