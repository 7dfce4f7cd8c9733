// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Desktop.h"
#include "agent/x11/PopUps.h"
#include "agent/x11/XServer.h"

#include <QObject>

#include <functional>
#include <memory>

/// Questions to the server are bounded to a few round trips. The scales of the screens are Qt's
/// where a QGuiApplication shows windows on the server; else they are 1.
class XDesktop : public Desktop {
public:
    /// It lives as long as `server` hands out events, and `server` outlives it.
    explicit XDesktop(XServer& server);

    std::vector<Screen> screens() const override;
    Place pointer() const override;
    /// Mapped override-redirect windows of others while somebody holds the pointer.
    std::vector<Area> openMenus() const override;
    bool lockWindowIsUp() const override;
    void onScreens(std::function<void()> changed) override;
    /// As the window manager says.
    void onActiveWindow(std::function<void()> changed) override;

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
    QObject context_; ///< of the connections to Qt's signals
};
