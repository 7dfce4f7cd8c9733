// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"
#include "platform/AppKit/NSObject.h"
#include "platform/AppKit/NSWindow.h"

class NSEvent;
class QWidget;

/// A part of the interface. It stands for one widget of the loaded form. The nib that loaded the
/// form owns the view.
class NSView : public NSObject {
public:
    /// Takes the view's widget. The loader calls it once.
    virtual void attachWidget(QWidget* widget);

    QWidget* widget() const { return widget_; }

    /// The view around this one. Null for the main view and for a detached view.
    NSView* superview() const;

    NSWindow window() const;

    /// Detaches the view. It is no longer shown, but stays alive with its frame, and its superview
    /// keeps its place free.
    void removeFromSuperview();

    /// Puts a detached view back, above this view's others. If this was its superview before, it
    /// returns to its old place.
    void addSubview(NSView* view);

    /// A hidden view takes no room. Keyboard and screen reader don't find it.
    void setHidden(bool hidden);

    /// The size in which all that it shows now is in sight, in points. Where a section of it would
    /// not fit on the screen, it counts on two columns or on scrolling.
    NSSize fittingSize() const;

    /// Asks its superview for at least this much room, in points.
    void setFrameSize(const NSSize& size);

    NSRect bounds() const; ///< in its own coordinates: origin 0, 0
    /// Shows its page in every stack of pages, and scrolls to it.
    void scrollToVisible();
    void setNeedsDisplay(bool needsDisplay);
    void setNeedsDisplayInRect(const NSRect& rect);

    /// Converts from the coordinates of another view, or of the window when `view` is null, to its
    /// own.
    NSPoint convertPoint(NSPoint point, const NSView* view) const;

    /// Its name for screen readers, in UTF-8. At first that of the form.
    std::string accessibilityLabel() const;
    void setAccessibilityLabel(std::string_view label);
    /// Its description for screen readers; UTF-8.
    void setAccessibilityHelp(std::string_view help);

    /// Whether it has the keyboard focus in the active window.
    bool isFirstResponder() const;

    // For views that the pane defines. Their widgets are promoted to them in the form.

    /// Draws the view. Only `dirtyRect` must be drawn.
    virtual void drawRect(const NSRect& dirtyRect);
    virtual void mouseDown(NSEvent* event);
    /// The left button was released after a mouseDown that wasn't passed on.
    virtual void mouseUp(NSEvent* event);
    /// The same for any other button.
    virtual void otherMouseDown(NSEvent* event);
    virtual void otherMouseUp(NSEvent* event);
    virtual void keyDown(NSEvent* event);
    virtual void keyUp(NSEvent* event);

    /// Offers a key press to the focused view before shortcuts. True when the view has used it; it
    /// then goes no further.
    virtual bool performKeyEquivalent(NSEvent* event);

    /// A modifier key went down or up.
    virtual void flagsChanged(NSEvent* event);

    /// The view became its window's first responder, and stays so while another window is active.
    /// The result has no effect here.
    virtual bool becomeFirstResponder();
    /// It no longer is first responder. The result has no effect here.
    virtual bool resignFirstResponder();

    /// Whether it can have the focus, by Tab and click or by the form's focusPolicy. Asked once,
    /// when it gets its widget.
    virtual bool acceptsFirstResponder() const { return false; }

private:
    friend class NibWiring; // it knows the superviews

    QWidget* widget_ = nullptr;
    NSView* superview_ = nullptr; ///< kept while detached
    bool detached_ = false;
};
