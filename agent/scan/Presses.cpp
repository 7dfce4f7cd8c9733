// SPDX-License-Identifier: MIT
#include "agent/scan/Presses.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

constexpr Switch kEverySwitch[kSwitches] = {Switch::First, Switch::Second, Switch::SecondButton};

/// What holding on does, whether the press counts or not.
constexpr std::pair<double, Signal::Kind> kLongHolds[] = {{kHoldToWake, Signal::Kind::Wake},
                                                          {kHoldToEnd, Signal::Kind::End}};

} // namespace

PressRules::PressRules(const PrefsRecord& record)
    : mode(static_cast<ScanMode>(record.scanMode)), shortest(record.minTriggerDuration),
      countsOnRelease(record.triggerOnRelease), ignoredAfterClick(record.afterClickDelay) {}

bool Presses::countsWhenLetGo(Switch which) const {
    return rules_.mode == ScanMode::Step
               ? which == Switch::First
               : rules_.mode == ScanMode::Automatic && rules_.countsOnRelease;
}

std::optional<Signal> Presses::next(Switch which) const {
    const Held& held = of(which);
    if (!held.isDown)
        return std::nullopt;
    std::optional<Signal> signal;
    if (held.longHolds < std::size(kLongHolds)) {
        const auto& [length, kind] = kLongHolds[held.longHolds];
        signal = {kind, which, held.since + length};
    }
    const bool chooses = rules_.mode == ScanMode::Step;
    if (!held.mayCount || (countsWhenLetGo(which) && !chooses))
        return signal;
    const double length = rules_.shortest + (countsWhenLetGo(which) ? kHoldToChoose : 0);
    if (!signal || held.since + length <= signal->moment)
        signal = {chooses ? Signal::Kind::Choose : Signal::Kind::Press, which, held.since + length};
    return signal;
}

void Presses::down(Switch which, double moment) {
    if (of(which).isDown)
        return;
    const bool mayCount = moment >= clicked_ + rules_.ignoredAfterClick;
    of(which) = {.isDown = true, .since = moment, .mayCount = mayCount};
    advance(moment);
}

void Presses::up(Switch which, double moment) {
    advance(moment);
    const Held held = std::exchange(of(which), {});
    if (!held.isDown)
        return;
    if (rules_.mode == ScanMode::Inverse && held.hasPressed)
        signals_.push_back({Signal::Kind::Release, which, moment});
    else if (held.mayCount && countsWhenLetGo(which) && moment >= held.since + rules_.shortest)
        signals_.push_back({Signal::Kind::Press, which, moment});
}

void Presses::advance(double now) {
    for (const Switch which : kEverySwitch) {
        for (auto signal = next(which); signal && signal->moment <= now; signal = next(which)) {
            signals_.push_back(*signal);
            Held& held = of(which);
            if (signal->kind == Signal::Kind::Press || signal->kind == Signal::Kind::Choose) {
                held.mayCount = false;
                held.hasPressed = signal->kind == Signal::Kind::Press;
            } else {
                ++held.longHolds;
            }
        }
    }
}

double Presses::deadline() const {
    double earliest = kNever;
    for (const Switch which : kEverySwitch)
        if (const auto signal = next(which))
            earliest = std::min(earliest, signal->moment);
    return earliest;
}

void Presses::forget() {
    held_ = {};
    signals_.clear();
}

std::vector<Signal> Presses::take() {
    std::ranges::stable_sort(signals_, {}, &Signal::moment);
    return std::exchange(signals_, {});
}
