// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSGeometry.h"

#include <string>

class NSView;

/// What a screen reader says about one element in a view.
struct NSAccessibilityElement {
    std::string label; ///< UTF-8
    NSRect frame;      ///< in the view's coordinates
    bool isSelected = false;
    bool isEnabled = true;
    std::string help = {}; ///< its description, UTF-8
};

/// A view that draws a list of elements and describes each to a screen reader. Indexes start at 0.
class NSAccessibilityList {
public:
    virtual int accessibilityCount() const = 0;
    virtual NSAccessibilityElement accessibilityElement(int index) const = 0;
    /// The element that the keyboard acts on while the view has the focus.
    virtual int accessibilityFocusedIndex() const = 0;
    /// Does what a click on the element does.
    virtual void accessibilityPress(int index) = 0;

protected:
    ~NSAccessibilityList() = default;
};

/// A view that is one button to a screen reader. Its value is read out with the description from
/// the form. UTF-8.
class NSAccessibilityButton {
public:
    virtual std::string accessibilityTitle() const = 0;
    virtual std::string accessibilityValue() const = 0; ///< what it shows at the moment
    /// Does what a click does.
    virtual void accessibilityPerformPress() = 0;

protected:
    ~NSAccessibilityButton() = default;
};

/// A view that draws one text, which is its value. UTF-8.
class NSAccessibilityStaticText {
public:
    virtual std::string accessibilityValue() const = 0;
    /// What the view is doing, in place of its help. Empty when it does nothing special.
    virtual std::string accessibilityStatus() const = 0;

protected:
    ~NSAccessibilityStaticText() = default;
};

enum ElementNotification {
    NSAccessibilityFocusedUIElementChangedNotification,
    NSAccessibilitySelectedChildrenChangedNotification,
};

/// Tells a running screen reader that the element at `index` was focused, selected or deselected.
/// Does nothing for an index outside the list.
void NSAccessibilityPostNotification(NSView* view, int index, ElementNotification notification);

enum ViewNotification {
    NSAccessibilityTitleChangedNotification,
    NSAccessibilityValueChangedNotification,
};

/// Tells a running screen reader that the view's name or value has changed.
void NSAccessibilityPostNotification(NSView* view, ViewNotification notification);

enum AnnouncementNotification { NSAccessibilityAnnouncementRequestedNotification };

/// Makes a running screen reader say the text (UTF-8) on behalf of the view.
void NSAccessibilityPostNotification(NSView* view, AnnouncementNotification notification,
                                     const std::string& text);

/// Tells a running screen reader that the view's value or status has changed.
void postValueChanged(const NSAccessibilityStaticText& view);
