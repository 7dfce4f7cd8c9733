// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include <deque>
#include <optional>
#include <string>

/// One step that can be undone: the settings that it changed, before and after.
struct HistoryStep {
    SettingSet settings;
    PrefsRecord before, after;
    double time;                             ///< of the last change, in seconds
    std::string profileBefore, profileAfter; ///< the names of those in use, empty for none
};

/// The last thousand steps of one visit. This class only keeps records. Its caller changes `prefs`
/// and reports the change.
class History {
public:
    explicit History(const PrefsRecord& start, const std::string& profile = {})
        : now_(start), profile_(profile) {}

    /// Notes a change by the user at `time`, in seconds of any steady clock. The differences from
    /// the last known record become a step. Without a difference there is none. Steps that were
    /// undone can't be redone any more. If the same number, colour, or side of an area or button
    /// changes again within two seconds, that belongs to the same step. `profile` names the one in
    /// use now. A change of the profile is always a step of its own.
    void note(const PrefsRecord& record, double time, const std::string& profile = {});

    /// Makes the next change a step of its own.
    void finishStep();

    /// Takes over a change that isn't the user's, such as the agent's report. It is no step.
    void follow(const PrefsRecord& record) { now_ = record; }

    /// The last known record.
    const PrefsRecord& now() const { return now_; }

    bool canUndo() const { return position_ > 0; }

    bool canRedo() const { return position_ < steps_.size(); }

    /// Undoes the last step, or does it again: puts its settings into `record` and returns it. Null
    /// when there is none. The step is valid until the next note().
    const HistoryStep* undo(PrefsRecord& record);
    const HistoryStep* redo(PrefsRecord& record);

private:
    bool joinsLast(const SettingSet& changed, const PrefsRecord& record, double time) const;

    PrefsRecord now_;
    std::string profile_;
    std::deque<HistoryStep> steps_;
    std::size_t position_ = 0; ///< steps before it are done, the others undone
};
