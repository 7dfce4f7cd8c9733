// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/x11/PopUps.h"
#include "agent/x11/XServer.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class ScreenLock;

/// What the agent has to know of the desktop around it: screens, panels, open menus, whether the
/// screen is locked. Questions to the server are bounded to a few round trips.
///
/// The scales of the screens are Qt's where a QGuiApplication shows windows on the server; else
/// they are 1.
class Desktop {
public:
    /// It lives as long as `server` hands out events, and `server` outlives it.
    explicit Desktop(XServer& server);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The screens with their panels, the main display first. Never empty. Of screens that show the
    /// same only one is there.
    std::vector<Screen> screens() const;

    /// An area in points of the contract, in pixels.
    Area inPixels(float x, float y, float width, float height) const;

    /// Of the mouse.
    Place pointer() const;

    /// The menus that are open, the innermost first: mapped override-redirect windows of others
    /// while somebody holds the pointer, but no tooltips, notifications and pictures of a drag.
    std::vector<Area> openMenus() const;

    /// Whether a program covers a screen with a window of its own and holds keyboard and pointer,
    /// as lock screens do that tell nobody. To be asked when a scan starts.
    bool lockWindowIsUp() const;

    /// Called when screens come, go or change, perhaps more than once for a change.
    void onScreens(std::function<void()> changed);
    /// Called when the active window is another one, as the window manager says.
    void onActiveWindow(std::function<void()> changed);
    /// Called with true when the screen gets locked, and with false when it is unlocked: by
    /// logind's hint or a screen saver's signal. It is unlocked at first.
    void onLock(std::function<void(bool)> changed);

private:
    void followQt();
    void followServer();
    void tellScreens() const;
    void followRoot();
    xcb_window_t activeWindow() const;

    XServer& server_;
    std::unique_ptr<PopUps> popUps_;
    std::function<void()> screensChanged_, activeWindowChanged_;
    xcb_window_t activeWindow_ = XCB_NONE;
    std::unique_ptr<ScreenLock> lock_;
    QObject context_; ///< of the connections to Qt's signals
};
