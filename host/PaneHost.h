// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPreferencePane.h"

#include <memory>
#include <string>
#include <vector>

class PaneWindow;
struct ShowRequest;

/// A preference pane, its window, and the one visit that this program pays to it.
class PaneHost {
public:
    PaneHost();
    ~PaneHost();
    PaneHost(const PaneHost&) = delete;
    PaneHost& operator=(const PaneHost&) = delete;

    /// Loads the bundle, its code and its main view. False when something is wrong; `errors` then
    /// says what, one line each, beginning with a file's path. Nothing of the pane has been called.
    bool load(const std::string& path, std::vector<std::string>& errors);

    /// After load: whether the bundle's other interface files hold what its code expects.
    bool checkWindows(std::vector<std::string>& errors);

    /// Selects the pane and shows its window. When the user closes that, the visit ends.
    void open();

    /// To be called once open.
    void bringToFront();

    /// To be called once open: turns to the section, when one is named, and has the desktop know
    /// that the window is there.
    void comply(const ShowRequest& request);

    /// To be called once open: has the pane store what was changed; the visit goes on. False when
    /// that failed: why is told in the window and on standard error.
    bool store();

    /// Ends the visit and the program; once it has ended already, nothing. Everything that can
    /// bring the end comes here. What matters goes first: the settings are stored, the agent is
    /// told, and only then windows are touched, whose server may be dead or hang.
    void end();

private:
    static void endAtExit();

    /// The user closes the window, which stays when the settings can't be stored.
    void close();
    void deselect();
    std::string infoText(const char* key) const;

    CFRef<CFBundle> bundle_;
    std::unique_ptr<NSPreferencePane> pane_;
    std::unique_ptr<PaneWindow> window_; ///< goes before the pane, whose views its widgets call
    bool isSelected_ = false;
};
