#pragma once

#include "platform/AppKit/NSObject.h"

class QWidget;

/// A rectangle of an interface, in points; y grows downward.
struct NSRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// A part of the interface. It stands for one widget of the loaded form, which owns the picture;
/// the Nib that loaded the form owns the view.
class NSView : public NSObject {
public:
    /// Takes the widget that the view stands for; called once, by the loader.
    virtual void attachWidget(QWidget* widget);

    QWidget* widget() const { return widget_; }

    /// The view that holds this one; null for the main view and for a detached view.
    NSView* superview() const;

    /// Detaches the view: it vanishes from its superview, which keeps its place free, and stays
    /// alive with its frame unchanged.
    void removeFromSuperview();

    /// Puts a detached view back, on top of this view's others. A view that came from this very
    /// superview returns to its old place.
    void addSubview(NSView* view);

    NSRect frame() const;  ///< in the superview's coordinates
    NSRect bounds() const; ///< in its own: origin 0, 0
    void setNeedsDisplay(bool needsDisplay);

private:
    friend class NibWiring; // which knows the superviews

    QWidget* widget_ = nullptr;
    NSView* superview_ = nullptr; ///< kept while detached
    bool detached_ = false;
};
