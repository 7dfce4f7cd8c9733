// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"

#include <string>

class NSView;

/// What a screen reader hears of one thing inside a view.
struct NSAccessibilityElement {
    std::string label; ///< UTF-8
    NSRect frame;      ///< in the view's coordinates
    bool isSelected = false;
    bool isEnabled = true;
};

/// A view that draws a list of things itself, and tells a screen reader of each. Indexes count from
/// 0.
class NSAccessibilityList {
public:
    virtual int accessibilityCount() const = 0;
    virtual NSAccessibilityElement accessibilityElement(int index) const = 0;
    /// The one that the keyboard acts on while the view has the focus.
    virtual int accessibilityFocusedIndex() const = 0;
    /// Does what a click on it does.
    virtual void accessibilityPress(int index) = 0;

protected:
    ~NSAccessibilityList() = default;
};

/// A view that is one button to a screen reader. What it shows is heard with the description that
/// the form gives it. UTF-8.
class NSAccessibilityButton {
public:
    virtual std::string accessibilityTitle() const = 0;
    virtual std::string accessibilityValue() const = 0; ///< what it shows at the moment
    /// Does what a click on it does.
    virtual void accessibilityPerformPress() = 0;

protected:
    ~NSAccessibilityButton() = default;
};

/// A view that draws one text, its value. Texts are UTF-8.
class NSAccessibilityStaticText {
public:
    virtual std::string accessibilityValue() const = 0;
    /// What it is about to do, in place of its help; empty for nothing in particular.
    virtual std::string accessibilityStatus() const = 0;

protected:
    ~NSAccessibilityStaticText() = default;
};

enum NSAccessibilityNotification {
    NSAccessibilityFocusedUIElementChangedNotification,
    NSAccessibilitySelectedChildrenChangedNotification,
};

/// Tells a running screen reader that the element at `index` of the view was focused, or selected
/// or no longer selected. Does nothing for an index outside the list.
void NSAccessibilityPostNotification(NSView* view, int index,
                                     NSAccessibilityNotification notification);

enum NSAccessibilityViewNotification {
    NSAccessibilityTitleChangedNotification,
    NSAccessibilityValueChangedNotification,
};

/// Tells a running screen reader that the view itself is called, or shows, something else.
void NSAccessibilityPostNotification(NSView* view, NSAccessibilityViewNotification notification);

enum NSAccessibilityAnnouncement { NSAccessibilityAnnouncementRequestedNotification };

/// Has a running screen reader say the text, in UTF-8, on behalf of the view.
void NSAccessibilityPostNotification(NSView* view, NSAccessibilityAnnouncement notification,
                                     const std::string& text);

/// Tells a running screen reader that the view's value or status changed.
void postValueChanged(const NSAccessibilityStaticText& view);
