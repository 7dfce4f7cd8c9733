// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/HIToolbox/MacWindows.h"

#include <string>

class NSView;
class QWidget;

/// The display that shows a window, or most of it.
struct NSScreen {
    NSSize frame;                  ///< in points
    NSSize millimetres;            ///< as reported, or from a common density when unknown
    double maximumFramesPerSecond; ///< at least 1
};

/// A view's window; see NSView::window. It lives as long as the view.
class NSWindow {
public:
    explicit NSWindow(QWidget* window) : window_(window) {}

    /// Gives the keyboard focus to a view of the window. With null no view has it, and only the
    /// window gets keys.
    void makeFirstResponder(NSView* view);

    /// Whether it is the active one, which gets the keys.
    bool isKeyWindow() const;

    /// Covers the window's content with the view; what the host says beneath stays in sight. Null
    /// shows the window's own content again, with the focus where it was. Neither is deleted.
    void setContentView(NSView* view);

    /// Whether the visit has ended. The window's server may be gone or hang then, so nothing in the
    /// window is shown, hidden or deleted.
    static bool isLeft();

    /// Fills the whole screen, or stops doing so.
    void toggleFullScreen();
    bool isFullScreen() const;

    NSScreen screen() const;

    QWidget* widget() const { return window_; }

    /// What the help has on the view with the keyboard: the property `help` of its widget or the
    /// nearest one around it, else of the page in sight. Empty when none has one.
    std::string helpTopic() const;

    /// The same window for Carbon.
    WindowRef windowRef() const;

private:
    QWidget* window_;
};
