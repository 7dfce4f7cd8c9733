// SPDX-License-Identifier: MIT
#pragma once

#include "src/differences.h"

#include <optional>
#include <string>
#include <vector>

/// One step of a visit that can be undone: the settings that it changed, before and after.
struct HistoryStep {
    SettingSet settings;
    PrefsRecord before, after;
    double time;                             ///< of its last change, in seconds
    std::string profileBefore, profileAfter; ///< the names of those in use, empty for none
};

/// The steps of one visit. It only keeps records: whoever undoes a step copies its settings into
/// `prefs` and reports the change.
class History {
public:
    explicit History(const PrefsRecord& start, const std::string& profile = {})
        : now_(start), profile_(profile) {}

    /// The user changed something at `time`, in seconds of any steady clock. What differs from the
    /// record as last known becomes a step, and what was undone can't be redone any more. Further
    /// changes of one number, colour or side of an area or button within two seconds belong to its
    /// step. A record
    /// without a difference is no step. `profile` names the one in use now; with another one than
    /// before, the change is a step of its own.
    void note(const PrefsRecord& record, double time, const std::string& profile = {});

    /// What comes next is a step of its own.
    void finishStep();

    /// Something else changed the record, such as the agent's report. That is no step.
    void follow(const PrefsRecord& record) { now_ = record; }

    /// The record as last known.
    const PrefsRecord& now() const { return now_; }

    bool canUndo() const { return position_ > 0; }

    bool canRedo() const { return position_ < steps_.size(); }

    /// Takes the last step back, or does it again: puts its settings into `record` and returns it.
    /// Null when there is none. The step stays this object's, until the next note().
    const HistoryStep* undo(PrefsRecord& record);
    const HistoryStep* redo(PrefsRecord& record);

private:
    bool joinsLast(const SettingSet& changed, const PrefsRecord& record, double time) const;

    PrefsRecord now_;
    std::string profile_;
    std::vector<HistoryStep> steps_;
    std::size_t position_ = 0; ///< steps before it are done, the others undone
};
