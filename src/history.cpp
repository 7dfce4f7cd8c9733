// SPDX-License-Identifier: MIT
#include "src/history.h"

#include <utility>

namespace {

constexpr double kSameStepSeconds = 2;

/// Whether a setting is changed in small steps or by dragging.
bool isGradual(const Setting& setting) {
    return setting.isNumber() || setting.notation == &kSizeNotation ||
           setting.notation == &kColourNotation;
}

} // namespace

void History::note(const PrefsRecord& record, double time, const std::string& profile) {
    const SettingSet changed = differences(now_, record);
    const std::string before = std::exchange(profile_, profile);
    if (changed.none())
        return;
    steps_.resize(position_, HistoryStep());
    if (before == profile && joinsLast(changed, time)) {
        steps_.back().after = record;
        steps_.back().time = time;
        if ((differences(steps_.back().before, record) & changed).none())
            steps_.pop_back();
    } else {
        steps_.push_back({changed, now_, record, time, before, profile});
    }
    position_ = steps_.size();
    now_ = record;
}

bool History::joinsLast(const SettingSet& changed, double time) const {
    return !steps_.empty() && steps_.back().settings == changed && changed.count() == 1 &&
           steps_.back().profileBefore == steps_.back().profileAfter &&
           isGradual(kSettings[firstOf(changed)]) && time - steps_.back().time <= kSameStepSeconds;
}

void History::finishStep() {
    if (!steps_.empty())
        steps_.back().time = -kSameStepSeconds;
}

const HistoryStep* History::undo(PrefsRecord& record) {
    if (!canUndo())
        return nullptr;
    HistoryStep& step = steps_[--position_];
    step.time = -kSameStepSeconds; // a change that comes next joins none
    copySettings(step.settings, step.before, record);
    now_ = record;
    profile_ = step.profileBefore;
    return &step;
}

const HistoryStep* History::redo(PrefsRecord& record) {
    if (!canRedo())
        return nullptr;
    HistoryStep& step = steps_[position_++];
    copySettings(step.settings, step.after, record);
    now_ = record;
    profile_ = step.profileAfter;
    return &step;
}
