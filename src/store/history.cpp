// SPDX-License-Identifier: MIT
#include "src/store/history.h"

#include <bit>
#include <cstring>
#include <utility>

namespace {

constexpr double kSameStepSeconds = 2;
constexpr std::size_t kMostSteps = 1000; // of 750 bytes each

/// The parts of a setting that differ, such as the sides of an area: one bit for each.
UInt32 differingParts(const Setting& setting, const PrefsRecord& a, const PrefsRecord& b) {
    const std::size_t size = setting.notation == &kRectangleNotation ? sizeof(float)
                             : setting.notation == &kSizeNotation    ? sizeof(SInt16)
                                                                     : setting.size;
    const auto* one = static_cast<const UInt8*>(setting.in(a));
    const auto* other = static_cast<const UInt8*>(setting.in(b));
    UInt32 parts = 0;
    for (std::size_t at = 0; at < setting.size; at += size)
        if (std::memcmp(one + at, other + at, size) != 0)
            parts |= 1U << at;
    return parts;
}

/// Whether a setting is changed in small steps or by dragging. Of an area that is one side.
bool isGradual(const Setting& setting, UInt32 parts) {
    return setting.isNumber() || setting.notation == &kSizeNotation ||
           setting.notation == &kColourNotation ||
           (setting.notation == &kRectangleNotation && std::has_single_bit(parts));
}

} // namespace

void History::note(const PrefsRecord& record, double time, const std::string& profile) {
    const SettingSet changed = differences(now_, record);
    const std::string before = std::exchange(profile_, profile);
    if (changed.none())
        return;
    steps_.resize(position_, HistoryStep());
    if (before == profile && joinsLast(changed, record, time)) {
        HistoryStep& step = steps_.back();
        step.after = record;
        step.time = time;
        if ((differences(step.before, record) & step.settings).none())
            steps_.pop_back();
    } else {
        steps_.push_back({changed, now_, record, time, before, profile});
    }
    if (steps_.size() > kMostSteps)
        steps_.pop_front();
    position_ = steps_.size();
    now_ = record;
}

// The first change of an area's side may also have switched the area on.
bool History::joinsLast(const SettingSet& changed, const PrefsRecord& record, double time) const {
    if (steps_.empty() || changed.count() != 1)
        return false;
    const HistoryStep& last = steps_.back();
    const Setting& setting = kSettings[firstOf(changed)];
    const UInt32 parts = differingParts(setting, now_, record);
    return (changed & ~last.settings).none() && last.profileBefore == last.profileAfter &&
           isGradual(setting, parts) && time - last.time <= kSameStepSeconds &&
           parts == differingParts(setting, last.before, last.after);
}

void History::finishStep() {
    if (!steps_.empty())
        steps_.back().time = -kSameStepSeconds;
}

const HistoryStep* History::undo(PrefsRecord& record) {
    if (!canUndo())
        return nullptr;
    HistoryStep& step = steps_[--position_];
    step.time = -kSameStepSeconds; // the next change doesn't join it
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
