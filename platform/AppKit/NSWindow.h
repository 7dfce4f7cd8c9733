#pragma once

#include "platform/HIToolbox/MacWindows.h"

class NSView;
class QWidget;

/// The window that a view is in, which lives as long as it; see NSView::window.
class NSWindow {
public:
    explicit NSWindow(QWidget* window) : window_(window) {}

    /// Gives the keyboard to a view of the window or, with null, to none: keys then reach the
    /// window alone.
    void makeFirstResponder(NSView* view);

    /// The window as Carbon knows it.
    WindowRef windowRef() const;

private:
    QWidget* window_;
};
