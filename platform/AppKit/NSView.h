// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/AppKit/NSObject.h"
#include "platform/AppKit/NSWindow.h"

class NSEvent;
class QWidget;

/// A part of the interface. It stands for one widget of the loaded form, which owns the picture;
/// the Nib that loaded the form owns the view.
class NSView : public NSObject {
public:
    /// Takes the widget that the view stands for; called once, by the loader.
    virtual void attachWidget(QWidget* widget);

    QWidget* widget() const { return widget_; }

    /// The view that holds this one; null for the main view and for a detached view.
    NSView* superview() const;

    NSWindow window() const;

    /// Detaches the view: it vanishes from its superview, which keeps its place free, and stays
    /// alive with its frame unchanged.
    void removeFromSuperview();

    /// Puts a detached view back, on top of this view's others. A view that came from this very
    /// superview returns to its old place.
    void addSubview(NSView* view);

    /// Hidden it takes no room, and neither keyboard nor screen reader find it.
    void setHidden(bool hidden);

    /// Asks its superview for at least so much room, in points.
    void setFrameSize(const NSSize& size);

    NSRect bounds() const; ///< in its own coordinates: origin 0, 0
    /// Turns every stack of pages to the one with this view, and scrolls to it.
    void scrollToVisible();
    void setNeedsDisplay(bool needsDisplay);
    void setNeedsDisplayInRect(const NSRect& rect);

    /// From the coordinates of another view, or of the window when `view` is null, to its own.
    NSPoint convertPoint(NSPoint point, const NSView* view) const;

    /// What a screen reader calls it, in UTF-8; given by the form at first.
    std::string accessibilityLabel() const;
    void setAccessibilityLabel(std::string_view label);
    /// What a screen reader says of it besides; UTF-8.
    void setAccessibilityHelp(std::string_view help);

    /// Whether it has the keyboard focus, in the active window.
    bool isFirstResponder() const;

    // What a view of the pane's own overrides; its widget is one that the form promoted to it.

    /// Draws the view. What lies outside `dirtyRect` need not be drawn.
    virtual void drawRect(const NSRect& dirtyRect);
    virtual void mouseDown(NSEvent* event);
    /// The left button was released, after a mouseDown that wasn't passed on.
    virtual void mouseUp(NSEvent* event);
    /// Of any other button, as mouseDown and mouseUp are of the left one.
    virtual void otherMouseDown(NSEvent* event);
    virtual void otherMouseUp(NSEvent* event);
    virtual void keyDown(NSEvent* event);
    virtual void keyUp(NSEvent* event);

    /// Offers a key press to the view that has the keyboard focus, before any shortcut sees it.
    /// True when the view used it; it then goes no further.
    virtual bool performKeyEquivalent(NSEvent* event);

    /// A modifier key went down or up.
    virtual void flagsChanged(NSEvent* event);

    /// The view became its window's first responder. It stays that while another window is active.
    /// The result means nothing here.
    virtual bool becomeFirstResponder();
    /// It no longer is. The result means nothing here.
    virtual bool resignFirstResponder();

    /// Whether it can have the focus: by Tab and by click, or as its focusPolicy in the form says.
    /// Asked once, when it gets its widget.
    virtual bool acceptsFirstResponder() const { return false; }

private:
    friend class NibWiring; // which knows the superviews

    QWidget* widget_ = nullptr;
    NSView* superview_ = nullptr; ///< kept while detached
    bool detached_ = false;
};
