// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/HIToolbox/MacWindows.h"

class NSView;
class QWidget;

/// The display that a window is on, or most of it.
struct NSScreen {
    NSSize frame;                  ///< in points
    NSSize millimetres;            ///< as its maker says; of one that doesn't, by a common density
    double maximumFramesPerSecond; ///< at least 1
};

/// The window that a view is in, which lives as long as it; see NSView::window.
class NSWindow {
public:
    explicit NSWindow(QWidget* window) : window_(window) {}

    /// Gives the keyboard to a view of the window or, with null, to none: keys then reach the
    /// window alone.
    void makeFirstResponder(NSView* view);

    /// Shows the view, all over the window, in the place of what the window shows by itself, which
    /// comes back with null. Neither is deleted. The keyboard is where it was then.
    void setContentView(NSView* view);

    /// Fills the whole screen, or no longer.
    void toggleFullScreen();
    bool isFullScreen() const;

    NSScreen screen() const;

    QWidget* widget() const { return window_; }

    /// The window as Carbon knows it.
    WindowRef windowRef() const;

private:
    QWidget* window_;
};
