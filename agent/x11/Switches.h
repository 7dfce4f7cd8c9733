// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Presses.h"
#include "agent/x11/XServer.h"
#include "src/record/PrefsRecord.h"

#include <string>
#include <vector>

/// Hears the switches and the agent's hot keys, and takes them from the programs below: passive
/// grabs of each physical device. They come in whoever holds the keyboard or has a menu open.
///
/// A mouse is no switch: while no scan is under way, a click of a device that moved kMoved points
/// within the last kMovedSeconds is passed on, and so is what is dragged with it.
class Switches {
public:
    /// What is heard. Moments are seconds on XServer's clock.
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

    static constexpr double kMoved = 40; ///< points
    static constexpr double kMovedSeconds = 5;

    /// Both must outlive it. Begins with State::Free.
    Switches(XServer& server, Listener& listener);
    /// Lets go of everything.
    ~Switches();

    /// The keys and buttons of a checked record, and the main display's pixels a point.
    void use(const PrefsRecord& record, double scale);
    void setState(State state);

    /// The keys in words that another program has. Empty if all could be taken.
    std::vector<std::string> taken() const;
};
