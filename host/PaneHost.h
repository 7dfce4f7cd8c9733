// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPreferencePane.h"

#include <memory>
#include <string>
#include <vector>

class PaneWindow;
struct ShowRequest;

/// A preference pane, its window, and this program's one visit to it.
class PaneHost {
public:
    PaneHost();
    ~PaneHost();
    PaneHost(const PaneHost&) = delete;
    PaneHost& operator=(const PaneHost&) = delete;

    /// Loads the bundle, its code and its main view. False when something is wrong. `errors` then
    /// says what, a line each, beginning with a file's path. No method of the pane has been called.
    bool load(const std::string& path, std::vector<std::string>& errors);

    /// After load: whether the bundle's other interface files have what the code expects.
    bool checkWindows(std::vector<std::string>& errors);

    /// Selects the pane and shows its window. Closing the window ends the visit.
    void open();

    /// Call it when open.
    void bringToFront();

    /// Call it when open. Shows the section, if one is named, and tells the desktop that the window
    /// is there.
    void comply(const ShowRequest& request);

    /// Call it when open. Makes the pane store changes; the visit goes on. False on failure: the
    /// window and standard error say why.
    bool store();

    /// Ends the visit and the program. A second call does nothing. Every way to end comes here. The
    /// order matters: the settings are stored, the agent is told, and only then windows are
    /// touched. Their server may be dead or hang.
    void end();

private:
    static void endAtExit();

    /// The user closes the window. It stays when the settings can't be stored.
    void close();
    void deselect();
    std::string infoText(const char* key) const;

    CFRef<CFBundle> bundle_;
    std::unique_ptr<NSPreferencePane> pane_;
    std::unique_ptr<PaneWindow> window_; ///< goes before the pane, whose views its widgets call
    bool isSelected_ = false;
};
