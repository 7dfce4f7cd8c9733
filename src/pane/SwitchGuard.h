// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/EventTimers.h"
#include "src/record/differences.h"

#include <functional>

/// Whether a press can start a scan with these settings.
bool hearsPresses(const PrefsRecord& record);

/// Keeps a change in the window from locking its user out. Once one would take the switch away, it
/// asks in the strip whether to keep it. Without that answer the change is undone after half a
/// minute. A record that is loaded so is left as it is.
class SwitchGuard {
public:
    /// Sets those settings to the record's values and says so.
    using PutBack = std::function<void(const SettingSet& settings, const PrefsRecord& record)>;

    SwitchGuard() = default;
    ~SwitchGuard();
    SwitchGuard(const SwitchGuard&) = delete;
    SwitchGuard& operator=(const SwitchGuard&) = delete;

    /// Takes `prefs` as they are. Earlier questions are void.
    void begin(PutBack putBack);
    /// Call it after each change of `prefs`. Does nothing before begin.
    void follow();
    /// Before `prefs` are stored for good: undoes in them what was asked about and not answered.
    /// No view is touched. Returns what has changed.
    SettingSet settle();

private:
    void putBack();
    void ask(unsigned lost);
    void forget();

    PutBack putBack_;
    PrefsRecord safe_;                  ///< the last record with nothing to ask about
    unsigned accepted_ = 0;             ///< losses that the user wants, or that were loaded
    unsigned asked_ = 0;                ///< losses in question; 0: none
    EventLoopTimerRef timer_ = nullptr; ///< null while nothing is asked
};
