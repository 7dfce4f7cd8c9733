// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Presses.h"
#include "src/record/PrefsRecord.h"

#include <string>

/// Hears the switches and the agent's hot keys.
class Switches {
public:
    /// What is heard. Moments are seconds on the monotonic clock. A switch that is down is told
    /// once, and comes up when all its keys and buttons have.
    class Listener {
    public:
        virtual void switchDown(Switch which, double moment) = 0;
        virtual void switchUp(Switch which, double moment) = 0;
        virtual void onOffKey() = 0;
        virtual void showSettingsKey() = 0;
        virtual void cancelKey() = 0;

    protected:
        ~Listener() = default;
    };

    enum class State {
        Free,  ///< the screen is locked, or the pane needs the keys: nothing is taken or heard
        Off,   ///< only "on/off" and "show the settings" are taken; the switches are heard, but not
               ///< taken
        Ready, ///< a press would start a scan
        Scanning ///< every click is a press, and the cancel key is taken, too
    };

    /// Begins with State::Free.
    virtual ~Switches() = default;
    Switches(const Switches&) = delete;
    Switches& operator=(const Switches&) = delete;

    /// The keys and buttons of a checked record, and the main display's pixels a point.
    virtual void use(const PrefsRecord& record, double scale) = 0;
    /// A switch that is held stays so, and is told when it comes up. Not with State::Free: then it
    /// is forgotten.
    virtual void setState(State state) = 0;

    /// What keeps presses from being heard, in a sentence, or empty.
    virtual std::string trouble() const = 0;

protected:
    Switches() = default;
};
